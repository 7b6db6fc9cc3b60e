#include "view/dialogs/guide.h"

#include "base/typography.h"
#include "view/look.h"
#include "view/qt_text.h"

#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace orvane {

namespace {

constexpr QSize WindowSize(860, 680);
constexpr int PictureWidth = 760;
constexpr int Margin = 28;
constexpr double Points = 10.5;

// The screens that a chapter is about.
constexpr std::array Chapters = std::to_array<std::pair<const char*, const char*>>({
    {"frm_Accueil", "L’accueil"},
    {"frm_Configuration", "La configuration"},
    {"frm_ArtisanatsManuels", "Les artisanats manuels"},
    {"frm_Archerie", "L’archerie"},
    {"frm_ArmesLégendaires", "Les armes légendaires"},
    {"frm_ArtisanatsMagiques", "Les artisanats magiques"},
    {"frm_ArtisanatsSecondaires", "Les artisanats secondaires"},
    {"frm_Panier", "Le panier"},
    {"frm_News", "Les nouvelles et l’état des données"},
    {"frm_Statut", "Les nouvelles et l’état des données"},
});

// What links inside the text call a heading: small letters, no signs, hyphens for blanks.
QString AnchorOf(const QString& Heading)
{
    QString Result = Heading.toLower();
    Result.removeIf([](QChar Each) { return !Each.isLetterOrNumber() && Each != u' '; });
    return Result.replace(u' ', u'-');
}

class Reader : public QTextBrowser
{
  public:
    explicit Reader(const QString& File)
    {
        setAccessibleName(QStringLiteral("Guide du crafteur"));
        setOpenLinks(false);
        setFont(look::Font(Points));
        setFrameShape(NoFrame);
        connect(this, &QTextBrowser::anchorClicked, this,
                [this](const QUrl& Link) { scrollToAnchor(Link.fragment()); });
        setSearchPaths({QFileInfo(File).path()});
        QFile Text(File);
        if (Text.open(QFile::ReadOnly))
            document()->setMarkdown(QString::fromUtf8(Text.readAll()));
        document()->setDocumentMargin(Margin);
        for (QTextBlock Each = document()->begin(); Each.isValid(); Each = Each.next())
            if (Each.blockFormat().headingLevel() > 0)
                NameHeading(Each);
    }

  protected:
    QVariant loadResource(int Kind, const QUrl& Name) override
    {
        QVariant Loaded = QTextBrowser::loadResource(Kind, Name);
        QImage Picture;
        if (Kind != QTextDocument::ImageResource || !Picture.loadFromData(Loaded.toByteArray()))
            return Loaded;
        return Picture.width() <= PictureWidth
                   ? Picture
                   : Picture.scaledToWidth(PictureWidth, Qt::SmoothTransformation);
    }

  private:
    static void NameHeading(const QTextBlock& Heading)
    {
        QTextCursor Cursor(Heading);
        Cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        QTextCharFormat Named;
        Named.setAnchor(true);
        Named.setAnchorNames({AnchorOf(Heading.text())});
        Cursor.mergeCharFormat(Named);
    }
};

class GuideWindow : public QDialog
{
  public:
    explicit GuideWindow(const QString& File) : Text(new Reader(File))
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowTitle(QStringLiteral("Guide du crafteur"));
        setWindowFlag(Qt::WindowMinMaxButtonsHint);
        auto* Column = new QVBoxLayout(this);
        Column->setContentsMargins(0, 0, 0, 0);
        Column->addWidget(Text);
        resize(WindowSize);
    }

    void ShowChapter(const QString& Heading)
    {
        show();
        raise();
        activateWindow();
        Text->scrollToAnchor(AnchorOf(Heading));
    }

  private:
    Reader* Text;
};

} // namespace

void OpenGuide(Application& App)
{
    const std::string File = App.Chemin("/Guide/guide.md");
    if (!QFileInfo::exists(ToQt(File))) {
        App.MsgBox(Typeset("Le guide est introuvable : « Guide/guide.md » manque à côté du "
                           "programme."));
        return;
    }
    static QPointer<GuideWindow> Opened;
    if (Opened == nullptr)
        Opened = new GuideWindow(ToQt(File));
    const Screen* Active = App.Feuilles.Active();
    const auto Chapter = std::ranges::find_if(Chapters, [&](const auto& Each) {
        return Active != nullptr && Active->Name() == Each.first;
    });
    Opened->ShowChapter(Chapter == Chapters.end() ? QString() : QString(Chapter->second));
}

} // namespace orvane
