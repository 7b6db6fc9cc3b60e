#include "stage.h"
#include "view/contrast.h"
#include "view/look.h"
#include "view/text_box_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

namespace orvane {

class TextBoxOnScreen : public Stage
{
  protected:
    void SetUp() override
    {
        Deeds["copy"] = [](const QString& Text) { QGuiApplication::clipboard()->setText(Text); };
        Deeds["menu"] = [](auto&) {
            QContextMenuEvent Asked(QContextMenuEvent::Mouse, {5, 5},
                                    Focused().mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(&Focused(), &Asked);
            auto& Menu = Checked(QApplication::activePopupWidget(), "menu");
            for (QAction* Each : Menu.actions())
                if (Each->text().contains("Ctrl+V"))
                    Each->trigger();
            Menu.close();
        };
        Deeds["drop"] = [](const QString& Text) {
            QMimeData Data;
            Data.setText(Text);
            QDragEnterEvent Enter({5, 5}, Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&Focused(), &Enter);
            QDropEvent Drop({5, 5}, Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&Focused(), &Drop);
        };
        Deeds["compose"] = [](const QString& Text) {
            QInputMethodEvent Composed;
            Composed.setCommitString(Text);
            QApplication::sendEvent(&Focused(), &Composed);
        };
        Deeds["unlock"] = [this](auto&) { Atelier().txt_Total.Locked = false; };
        Deeds["whole"] = [this](auto&) { Atelier().txt_Nombre.Accepts = NumberKind::Entier16; };
        Deeds["waits"] = [this](auto&) { Atelier().txt_Total.WaitsFor = &Atelier().txt_Nombre; };
        Deeds["kept"] = [this](auto& Text) { Atelier().txt_Nombre.Stored = FromQt(Text); };
        Deeds["stale"] = [this](const QString& Is) { Atelier().txt_Total.Stale = Is == "yes"; };
        Deeds["total"] = [this](const QString& Text) { Atelier().txt_Total.Text = FromQt(Text); };
        for (TextBox* Each : Fields())
            Each->OnChange = [this, Each] {
                Log() << ToQt(Each->Text);
                if (Each == &Atelier().txt_Nombre && Each->Text == "")
                    Each->Text = "0"; // the program repairs it
            };
    }
    std::vector<TextBox*> Fields()
    {
        return {&Atelier().txt_Nombre, &Atelier().txt_Nom, &Atelier().txt_Total};
    }

    // Each text that has reached the model.
    std::string Seen() override
    {
        for (TextBox* Each : Fields()) {
            const auto& Field = The<QLineEdit>(ToQt(Each->Name()));
            EXPECT_EQ(FromQt(Field.text()), Each->Text);
            EXPECT_EQ(Field.isReadOnly(), Each->Locked());
        }
        return Stage::Seen();
    }
};

constexpr Row TextRows[] = {
    {"EachKey", "<in txt_Nom>M. d", "M|M.|M. |M. d"},
    {"APointIsACommaInANumber", "<in txt_Nombre>12.5", "1|12|12,|12,5"},
    {"AClickSelectsANumber", "<in txt_Nombre>1<click txt_Nom><click txt_Nombre>12", "1|12"},
    {"AndNoName", "<in txt_Nom>a<in txt_Nombre><click txt_Nom>b", "a|ba"},
    {"TheKeypadsPointToo", "<in txt_Nombre>7<Num+.>2", "7|7,|7,2"},
    {"APastedNumber", "<copy  1 234.50 ><in txt_Nombre><Ctrl+V>", "1234,50"},
    {"APasteReplacesTheSelection", "<copy 2.5><in txt_Nombre>1<Ctrl+A><Ctrl+V>", "1|2,5"},
    {"ByTheMenu", "<copy 3.25><in txt_Nombre><menu>", "3,25"},
    {"ADrop", "<in txt_Nombre><drop 0.75>", "0,75"},
    {"AnInputMethodsPoint", "<in txt_Nombre>1<compose .>5", "1|1,|1,5"},
    {"APasteInTheMiddle", "<copy 3 .><in txt_Nombre>12<Left><Ctrl+V>4", "1|12|13,2|13,42"},
    {"ABlankIsNoNumber", "<in txt_Nombre>1 2", "1|12"},
    {"ANameKeepsPointsAndBlanks", "<copy M. de\nTours><in txt_Nom><Ctrl+V>", "M. de Tours"},
    {"ANameInComposedLetters", "<copy E\u0301pe\u0301e\r\n><in txt_Nom><Ctrl+V>", "Épée"},
    {"ARepairedTextIsReplacedByTheNextKey", "<in txt_Nombre>5<Backspace>8", "5||0|8"},
    {"Undo", "<in txt_Nom>ab<Ctrl+Z>", "a|ab|"},
    {"UndoOfAPoint", "<in txt_Nombre>1.5<Ctrl+Z>", "1|1,|1,5||0"},
    {"UndoOfAPaste", "<copy 1 234.5><in txt_Nombre>7<Ctrl+A><Ctrl+V><Ctrl+Z>", "7|1234,5|7"},
    {"UndoOfADropAndRedo", "<in txt_Nombre>7<drop 2.5><Ctrl+Z><Ctrl+Shift+Z>", "7|2,57|7|2,57"},
    {"TypedAfterUndo", "<copy .5><in txt_Nombre>7<Ctrl+V><Ctrl+Z>8", "7|7,5|7|78"},
    {"TheProgramWrites", "<total Épée>", "Épée"},
    {"ALockedBoxTakesNothing", "<copy 9><in txt_Total>9<Ctrl+V><drop 9><Del><menu>", ""},
    {"ALockedBoxGivesItsText", "<in txt_Total><Ctrl+A><Ctrl+C><in txt_Nom><Ctrl+V>", "42"},
    {"UnlockedAtOnce", "<unlock><in txt_Total><Ctrl+A>9", "9"},
};
EACH_ROW(TextBoxOnScreen, TextRows);

class TextBoxLook : public TextBoxOnScreen
{
  protected:
    // What is unusual in its colours and its font, and the tip.
    std::string Seen() override
    {
        const auto& Field = The<TextBoxView>(Focused().objectName());
        const Control& Box = Field.Model();
        const QPalette& Colours = Field.palette();
        std::string Result;
        if (Colours.color(QPalette::Base) != look::GroundOf(Box.BackColor))
            Result += "wrong ";
        if (Colours.color(QPalette::Text) != look::InkOf(Box.ForeColor))
            Result += "muted ";
        if (Field.font().italic())
            Result += "italic ";
        EXPECT_TRUE(Result.empty() || Field.accessibleDescription() == Field.toolTip());
        return Result + FromQt(Field.toolTip());
    }
};

constexpr Row LookRows[] = {
    {"AWrongText", "<in txt_Nombre>abc", "wrong Ce texte n’est pas un nombre."},
    {"ANumberTooGreat", "<whole><in txt_Nombre>40000",
     "wrong Il faut un nombre de -32768 à 32767."},
    {"Corrected", "<in txt_Nombre>abc<Ctrl+A>3", ""},
    {"ASettingThatIsNotKeptYet", "<kept 12><in txt_Nombre>13",
     "Pas encore enregistré : « Valider » le garde."},
    {"ASettingAsItIsKept", "<kept 12><in txt_Nombre>12", ""},
    {"ASettingThatHasJustBeenKept", "<in txt_Nombre>13<kept 13>", ""},
    {"AStaleFigure", "<in txt_Total><stale yes>",
     "muted italic Ce chiffre date d’avant une saisie à corriger ou un choix à refaire."},
    {"AFigureThatWaits", "<in txt_Total><waits><stale yes>",
     "muted italic Ce chiffre attend un nombre juste dans «\u00a0Nb d'objets\u00a0»."},
    {"FreshAgain", "<in txt_Total><stale yes><stale no>", ""},
    {"ALongText", "<in txt_Total><total Une bien longue désignation>",
     "Une bien longue désignation"},
    {"AShortText", "<in txt_Total><total Une longue désignation><total 1>", ""},
};
EACH_ROW(TextBoxLook, LookRows);

using FiguresOnScreen = TextBoxOnScreen;

TEST_F(FiguresOnScreen, OfOneColumnHaveOneSize)
{
    Show();
    const auto SizeOf = [this](const char* Name) {
        QCoreApplication::processEvents();
        return The<TextBoxView>(Name).font().pointSizeF();
    };
    for (const char* Text : {"Une désignation assez longue", "8"}) {
        Atelier().txt_Total.Text = Text;
        EXPECT_EQ(SizeOf("txt_Total") < 9, std::string(Text) != "8");
        EXPECT_EQ(SizeOf("txt_Poids"), SizeOf("txt_Total"));
    }
}

TEST_F(FiguresOnScreen, TakeTheColoursOfASkin)
{
    Show();
    Windows.TakeColours({{"Papier", RGB(1, 2, 3)}, {"Encre", RGB(9, 9, 9)}});
    const QPalette Colours = The<TextBoxView>("txt_Total").palette();
    EXPECT_EQ(Colours.color(QPalette::Base), QColor(1, 2, 3));
    EXPECT_GE(Contrast(Colours.color(QPalette::Text), QColor(1, 2, 3)), LeastContrast);
    Windows.TakeColours({});
    EXPECT_EQ(The<TextBoxView>("txt_Total").palette().color(QPalette::Base), look::Shades().Paper);
}

using TextBoxFailure = TextBoxOnScreen;

TEST_F(TextBoxFailure, IsOneBoxAndTheWindowGoesOn)
{
    const Failure Given(FailureKind::ChoiceMissing, "Cape");
    Atelier().txt_Nom.OnChange = [&] { throw Given; };
    Boxes.ExpectMsgBox(Given.Sentence());
    Play("<in txt_Nom>x");
    EXPECT_TRUE(Boxes.IsDone());
    EXPECT_EQ(The<TextBoxView>("txt_Nom").text(), "x");
}

using PastedNumbers = TextBoxOnScreen;

TEST_F(PastedNumbers, AreSpelledAsTheNumberTextsAre)
{
    // Two separators are left to the reader, and marked.
    for (const QString Each :
         {"12.5=12,5", "12,5=12,5", ".5=,5", " -3 =-3", "12\n=12", "abc=abc", "1 234,50=1234,50",
          "1\u00A0234.5=1234,5", "1\u202F234\u2009567=1234567", "1.234,50=1.234,50",
          "1.234.567=1.234.567"}) {
        Play("<copy " + Each.section('=', 0, 0) + "><in txt_Nombre><Ctrl+A><Ctrl+V>");
        EXPECT_EQ(ToQt(Atelier().txt_Nombre.Text), Each.section('=', 1)) << FromQt(Each);
    }
}

} // namespace orvane
