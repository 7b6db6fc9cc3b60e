#include "stage.h"
#include "view/qt_dialogs.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace orvane {

class DialogsOverScreen : public Stage
{
  protected:
    DialogsOverScreen() { Real.StandAbove(TheForms); }

    // Does something to the next box as soon as it is up.
    template <class Action>
    void WhenUp(Action Do)
    {
        QTimer::singleShot(0, [Do] {
            auto* Box = QApplication::activeModalWidget();
            ASSERT_NE(Box, nullptr);
            Do(*Box);
            if (Box->isVisible())
                static_cast<QDialog*>(Box)->reject(); // a test that failed shall not hang
        });
    }

    QtDialogs Real;
};

TEST_F(DialogsOverScreen, AMessageBearsTheProgramsTitleOneButtonAndPlainText)
{
    Show();
    WhenUp([this](QWidget& Box) {
        auto& Message = static_cast<QMessageBox&>(Box);
        EXPECT_EQ(Message.windowTitle(), "Orvane - Artisanat");
        EXPECT_EQ(Message.text(), "Un <b>prix</b>");
        EXPECT_EQ(Message.textFormat(), Qt::PlainText);
        EXPECT_EQ(Message.buttons().size(), 1);
        EXPECT_EQ(Message.parentWidget(), &Window());
        QTest::keyClick(&Message, Qt::Key_Escape);
        EXPECT_FALSE(Message.isVisible());
    });
    Real.MsgBox("Un <b>prix</b>");
}

TEST_F(DialogsOverScreen, AMessageComesUpBeforeThereIsAnyWindow)
{
    WhenUp([](QWidget& Box) {
        EXPECT_EQ(Box.parentWidget(), nullptr);
        QTest::keyClick(&Box, Qt::Key_Return);
    });
    Real.MsgBox("Base absente");
}

TEST_F(DialogsOverScreen, APromptGivesWhatWasTyped)
{
    Show();
    WhenUp([](QWidget& Box) {
        EXPECT_EQ(Box.windowTitle(), "Commande");
        auto* Field = Box.findChild<QLineEdit*>();
        EXPECT_EQ(Field->accessibleName(), "Nom de l'acheteur ?");
        EXPECT_EQ(Box.focusWidget(), Field);
        QTest::keyClicks(Field, "Ana");
        QTest::keyClick(Field, Qt::Key_Return);
    });
    EXPECT_EQ(Real.InputBox("Nom de l'acheteur ?", "Commande"), "Ana");
}

TEST_F(DialogsOverScreen, ACancelledPromptGivesNothing)
{
    Show();
    WhenUp([](QWidget& Box) {
        QTest::keyClicks(Box.findChild<QLineEdit*>(), "Bob");
        QTest::keyClick(&Box, Qt::Key_Escape);
    });
    EXPECT_EQ(Real.InputBox("Nom ?", "Commande"), "");
}

TEST_F(DialogsOverScreen, ItsButtonsSpeakFrench)
{
    Show();
    QStringList Words;
    WhenUp([&](QWidget& Box) {
        for (const QPushButton* Each : Box.findChildren<QPushButton*>())
            Words << Each->text().remove(u'&');
    });
    Real.InputBox("Nom ?", "Commande");
    EXPECT_TRUE(Words.contains("Annuler")) << Words.join(", ").toStdString();
}

TEST_F(DialogsOverScreen, AColourIsGivenInTheModelsNumbers)
{
    Show();
    WhenUp([](QWidget& Box) {
        auto& Chooser = static_cast<QColorDialog&>(Box);
        Chooser.setCurrentColor(QColor(1, 2, 3));
        Chooser.accept();
    });
    EXPECT_EQ(Real.ShowColor(), RGB(1, 2, 3));
    WhenUp([](QWidget& Box) { QTest::keyClick(&Box, Qt::Key_Escape); });
    EXPECT_EQ(Real.ShowColor(), std::nullopt);
}

TEST_F(DialogsOverScreen, AClosingBoxActivatesNothing)
{
    Show();
    TheForms.Touch("frm_Atelier");
    WhenUp([this](QWidget& Box) {
        QEvent Passing(QEvent::WindowActivate);
        QApplication::sendEvent(&Window(), &Passing);
        QTest::keyClick(&Box, Qt::Key_Return);
    });
    Real.MsgBox("Fait");
    EXPECT_EQ(TheForms.Active(), &Atelier());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window())) << "the keyboard is back in the window";
}

} // namespace orvane
