#include "stage.h"
#include "view/combo_box_view.h"
#include "view/entry_popup.h"

#include <QLineEdit>
#include <QWheelEvent>

namespace orvane {

class ComboBoxOnScreen : public Stage
{
  protected:
    void SetUp() override
    {
        Deeds["arrow"] = [this](auto&) { Click(View(), {View().width() - 8, 12}); };
        Deeds["text"] = [this](auto&) { Click(Field()); };
        Deeds["row"] = [this](auto& Row) { ClickRow(List(), Row.toInt()); };
        Deeds["elsewhere"] = [this](auto&) { Click(Window(), {400, 580}); };
        Deeds["wheel"] = [this](auto&) {
            for (QWidget* Over : std::initializer_list<QWidget*>{&View(), &Field()}) {
                const QPointF At = Over->rect().center();
                QWheelEvent Turn(At, Over->mapToGlobal(At), {}, {0, -120}, Qt::NoButton,
                                 Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(Over, &Turn);
            }
        };
        Deeds["choose"] = [this](const QString& Entry) { Box().ListIndex = Entry.toInt(); };
        Deeds["keep"] = [this](auto&) { Box().KeepsTyping = true; };
        Deeds["write"] = [this](const QString& Text) { Box().Text = FromQt(Text); };
        Deeds["fill"] = [this](const QString& Entries) {
            Box().Clear();
            for (const QString& Each : Entries.split(',', Qt::SkipEmptyParts))
                Box().AddItem(FromQt(Each));
        };
        Play("<in cbo_Objet>");
    }
    ComboBox& Box() { return Atelier().cbo_Objet; }
    ComboBoxView& View() { return The<ComboBoxView>("cbo_Objet"); }
    QLineEdit& Field() { return *View().lineEdit(); }
    const EntryPopup& List() { return Checked(View().Popup(), "list"); }

    // "text#index (picks) [open list, its highlighted entry with a star]"; a text that bears the
    // sign of a half-typed one has a "~" behind it.
    std::string Seen() override
    {
        EXPECT_EQ(FromQt(Field().text()), Box().Text);
        EXPECT_EQ(Field().accessibleName(), "Objet");
        EXPECT_TRUE(View().Popup() == nullptr || List().accessibleName() == "Objet");
        QStringList Offered;
        if (const EntryPopup* List = View().Popup(); List != nullptr && List->isVisible())
            for (int Row = 0; Row < List->model()->rowCount(); ++Row)
                Offered << (Row == List->currentIndex().row() ? "*" : "") +
                               List->model()->index(Row, 0).data().toString();
        const bool Signed = View().accessibleDescription().startsWith("Texte tapé");
        return Box().Text + (Signed ? "~" : "") + "#" + std::to_string(Box().ListIndex) + " (" +
               Stage::Seen() + ") [" + FromQt(Offered.join('/')) + "]";
    }
};

constexpr Row ComboBoxRows[] = {
    {"TypingChoosesNothing", "Cape", "Cape~#-1 () [*Cape]"},
    {"LeavingIsNoPick", "Cape<Tab>", "#-1 () []"},
    {"TheTextOfBeforeComesBack", "<choose 1>xy<click txt_Nombre>", "Épée courte#1 (1) []"},
    {"AlsoOneThatTheProgramWrote", "<write rien>xy<click lst_Noms>", "rien#-1 () []"},
    {"AButtonMayUseWhatIsTyped", "<choose 1>xy<in cmd_Ajouter>", "xyÉpée courte~#1 (1) []"},
    {"ALockedBoxIsNoInput", "<choose 1>xy<click txt_Total>", "xyÉpée courte~#1 (1) []"},
    {"SomeListsKeepTheTyping", "<keep><choose 1>xy<click txt_Nombre>", "xyÉpée courte~#1 (1) []"},
    {"EscapeTakesItBackFirst", "<choose 1>x<Esc>", "Épée courte#1 (1) []"},
    {"EscapeThenLeavesAllTheSame", "<choose 1>x<Esc><Esc>", "Épée courte#1 (1|back) []"},
    {"TypedAwayByHand", "<choose 1>x<Backspace>", "Épée courte#1 (1) [*Épée courte]"},
    {"TheProgramsTextIsNotTyped", "xy<write rien>", "rien#-1 () []"},
    {"NorIsAnEmptiedListsText", "x<Backspace><fill a><click txt_Nombre>", "#-1 () []"},
    {"CaseAndAccentsAside", "ep", "ep~#-1 () [Épée courte/Grande épée]"},
    {"BeginningsFirst", "<fill Grande épée,Épée>ep", "ep~#-1 () [Épée/Grande épée]"},
    {"CapitalsAndAccents", "GRANDE ÉP", "GRANDE ÉP~#-1 () [Grande épée]"},
    {"NoOffer", "epx", "epx~#-1 () []"},
    {"NothingForNothing", "e<Backspace>", "#-1 () []"},
    {"GoingThroughOffers", "ep<Down><Down>", "ep~#-1 () [Épée courte/*Grande épée]"},
    {"EnterTakesTheHighlighted", "ep<Down><Down><Return>", "Grande épée#2 (2) []"},
    {"EnterTakesWhatIsTypedInFull", "cape<Enter>", "Cape#0 (0) []"},
    {"InFullWithoutItsAccent", "echarpe<Return>", "Écharpe#3 (3) []"},
    {"EnterWithoutHighlight", "ca<Return><Return>", "ca~#-1 () []"},
    {"MousePickKeepsTheKeyboard", "ep<row 1><Down>", "Écharpe#3 (2|3) []"},
    {"ArrowOpens", "<arrow>", "#-1 () [Cape/Épée courte/Grande épée/Écharpe]"},
    {"AClickIntoTheTextOpensToo", "<text>", "#-1 () [Cape/Épée courte/Grande épée/Écharpe]"},
    {"WhatIsTypedThenBeginsAfresh", "<choose 1><text>ca", "ca~#1 (1) [Cape]"},
    {"ASecondClickCloses", "<text><text>", "#-1 () []"},
    {"ArrowCloses", "<arrow><arrow>", "#-1 () []"},
    {"ListOpensAtTheChoice", "<choose 1><F4>",
     "Épée courte#1 (1) [Cape/*Épée courte/Grande épée/Écharpe]"},
    {"SameEntryByMouse", "<choose 1><arrow><row 1>", "Épée courte#1 (1|1) []"},
    {"SameEntryByKey", "<choose 1><F4><Return>", "Épée courte#1 (1|1) []"},
    {"NoneBeforeTheFirst", "<Up><Down><Up>", "Cape#0 (0) []"},
    {"NeighboursOfTheChoice", "<Down><Down><Up>", "Cape#0 (0|1|0) []"},
    {"PageInTheOpenList", "<F4><PgDown>", "#-1 () [Cape/Épée courte/*Grande épée/Écharpe]"},
    {"AltDownOpens", "<Alt+Down>", "#-1 () [Cape/Épée courte/Grande épée/Écharpe]"},
    {"EscapeClosesTheList", "<Alt+Down><Esc>", "#-1 () []"},
    {"EscapeThenLeaves", "<Alt+Down><Esc><Esc>", "#-1 (back) []"},
    {"WheelPicksNothing", "<choose 1><wheel>", "Épée courte#1 (1) []"},
    {"APressElsewhereCloses", "<arrow><elsewhere>", "#-1 () []"},
    {"TheProgramsTextIsNoEntry", "<choose 2><write rien de tel>", "rien de tel#2 (2) []"},
    {"TheProgramEmptiesIt", "<choose 2><fill>", "#-1 (2) []"},
    {"ARefilledListOffersAnew", "ep<fill Épinglette,b,c,d>epi", "epi~#-1 () [Épinglette]"},
};
EACH_ROW(ComboBoxOnScreen, ComboBoxRows);

using LongEntry = ComboBoxOnScreen;

TEST_F(LongEntry, IsReadableInTheListAndInATip)
{
    const QString Long = "Grande pelisse d'apparat du conseil des Neuf Foyers de la Marche";
    Box().AddItem(FromQt(Long));
    Play("<arrow>");
    EXPECT_GT(List().width(), View().fontMetrics().horizontalAdvance(Long));
    EXPECT_TRUE(Window().rect().contains(List().geometry()));
    Play("<row 4>");
    EXPECT_EQ(Field().cursorPosition(), 0) << "the field shows its beginning";
    EXPECT_EQ(View().toolTip(), Long);
    Box().ListIndex = 0;
    EXPECT_EQ(View().toolTip(), "");
}

} // namespace orvane
