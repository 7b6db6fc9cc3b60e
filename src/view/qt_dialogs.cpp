#include "view/qt_dialogs.h"

#include "view/look.h"
#include "view/qt_text.h"
#include "view/screen_window.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr QMargins Margins(18, 16, 18, 16);

// Runs a box, then leaves the keyboard where it was.
int Run(QDialog& Box)
{
    const QPointer<QWidget> Below = Box.parentWidget();
    const int Result = Box.exec();
    if (Below != nullptr && Below->isVisible())
        Below->activateWindow();
    return Result;
}

} // namespace

QWidget* QtDialogs::ActiveWindow() const
{
    QWidget* Now = QApplication::activeWindow();
    if (TheForms == nullptr || (Now != nullptr && dynamic_cast<ScreenWindow*>(Now) == nullptr))
        return Now; // a window beside the screens tells its own
    for (QWidget* Each : QApplication::topLevelWidgets()) {
        const auto* Window = dynamic_cast<ScreenWindow*>(Each);
        if (Window != nullptr && &Window->Model() == TheForms->Active() && Window->isVisible())
            return Each;
    }
    return nullptr;
}

void QtDialogs::MsgBox(const std::string& Text)
{
    QMessageBox Box(QMessageBox::NoIcon, ToQt(ProgramTitle), ToQt(Text), QMessageBox::Ok,
                    ActiveWindow());
    Box.setTextFormat(Qt::PlainText);
    Box.setIconPixmap(look::Notice(Box.devicePixelRatioF()));
    Box.layout()->setContentsMargins(Margins);
    Run(Box);
    if (auto* Window = dynamic_cast<ScreenWindow*>(ActiveWindow()))
        Window->FocusFirstWrong(); // what has been refused is there to be corrected
}

bool QtDialogs::Confirm(const std::string& Question)
{
    QMessageBox Box(QMessageBox::NoIcon, ToQt(ProgramTitle), ToQt(Question),
                    QMessageBox::Yes | QMessageBox::No, ActiveWindow());
    Box.setTextFormat(Qt::PlainText);
    Box.setIconPixmap(look::Notice(Box.devicePixelRatioF()));
    Box.setDefaultButton(QMessageBox::Yes);
    Box.layout()->setContentsMargins(Margins);
    return Run(Box) == QMessageBox::Yes;
}

std::string QtDialogs::InputBox(const std::string& Prompt, const std::string& Title)
{
    constexpr int LeastWidth = 380;
    QDialog Box(ActiveWindow());
    Box.setWindowTitle(ToQt(Title));
    auto* Field = new QLineEdit;
    Field->setAccessibleName(ToQt(Prompt));
    Field->setMinimumWidth(LeastWidth);
    auto* Words = new QLabel(ToQt(Prompt));
    Words->setTextFormat(Qt::PlainText);
    Words->setWordWrap(true);
    auto* Buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(Buttons, &QDialogButtonBox::accepted, &Box, &QDialog::accept);
    QObject::connect(Buttons, &QDialogButtonBox::rejected, &Box, &QDialog::reject);
    auto* Column = new QVBoxLayout(&Box);
    Column->setSizeConstraint(QLayout::SetFixedSize);
    Column->setSpacing(12);
    Column->setContentsMargins(Margins);
    Column->addWidget(Words);
    Column->addWidget(Field);
    Column->addWidget(Buttons);
    Field->setFocus();
    return Run(Box) == QDialog::Accepted ? FromQt(Field->text()) : std::string();
}

std::optional<Colour> QtDialogs::ShowColor()
{
    QColorDialog Box(look::ColourOf(LastColour), ActiveWindow());
    Box.setOption(QColorDialog::DontUseNativeDialog);
    Box.setWindowTitle(QStringLiteral("Choisir une couleur"));
    if (Run(Box) != QDialog::Accepted)
        return std::nullopt;
    const QColor Chosen = Box.selectedColor();
    LastColour = RGB(Chosen.red(), Chosen.green(), Chosen.blue());
    return LastColour;
}

} // namespace orvane
