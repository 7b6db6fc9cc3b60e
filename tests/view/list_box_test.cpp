#include "stage.h"
#include "view/list_box_view.h"

#include <QScrollBar>

namespace orvane {

class ListBoxOnScreen : public Stage
{
  protected:
    void SetUp() override
    {
        Deeds["row"] = [this](auto& Row) { ClickRow(View(), Row.toInt()); };
        Deeds["below"] = [this](auto&) { Click(*View().viewport(), {10, View().height() - 8}); };
        Deeds["choose"] = [this](const QString& Entry) { Names().ListIndex = Entry.toInt(); };
        Deeds["add"] = [this](const QString& Entry) { Names().AddItem(FromQt(Entry)); };
        Deeds["scroll"] = [this](const QString& Row) { PriceBar().setValue(Row.toInt()); };
        Deeds["fill"] = [this](const QString& Count) {
            Names().Clear();
            Atelier().lst_Prix.Clear();
            for (int i = 0; i < Count.toInt(); ++i) {
                Names().AddItem("Objet " + std::to_string(i));
                Atelier().lst_Prix.AddItem(std::to_string(10 * i));
            }
        };
        Play("<in lst_Noms>");
    }
    ListBox& Names() { return Atelier().lst_Noms; }
    ListBoxView& View() { return The<ListBoxView>("lst_Noms"); }
    QScrollBar& PriceBar() { return *The<ListBoxView>("lst_Prix").verticalScrollBar(); }

    // The picks that have run. The list shows the model's entries and its choice.
    std::string Seen() override
    {
        std::vector<std::string> Texts;
        for (int Row = 0; Row < View().model()->rowCount(); ++Row)
            Texts.push_back(FromQt(View().model()->index(Row, 0).data().toString()));
        EXPECT_EQ(Texts, Names().Items());
        const QModelIndexList Chosen = View().selectionModel()->selectedIndexes();
        EXPECT_EQ(Chosen.isEmpty() ? -1 : Chosen[0].row(), Names().ListIndex);
        return Stage::Seen();
    }
};

constexpr Row PickRows[] = {
    {"AClickAlsoOfTheChosenEntry", "<fill 3><row 1><row 1>", "1|1"},
    {"NothingBelowTheEntries", "<fill 1><below>", ""},
    {"Keys", "<fill 4><Down><Down><End><Down><Up><Home><Up>", "0|1|3|3|2|0|0"},
    {"KeysForTheChosenEntry", "<fill 4><Down><Space><Return><Enter>", "0|0|0|0"},
    {"LettersWithoutRegardToAccents", "<fill 2><add Écharpe>e", "2"},
    {"ALetterAgainForTheNextEntry", "<fill 3><add Écharpe>o", "0"},
    {"ALetterFromTheChosenEntry", "<fill 3><add Écharpe><choose 0>o", "0|1"},
    {"TheProgramsChoice", "<fill 3><choose 2>", "2"},
    {"TheProgramsChoiceOfNone", "<fill 3><choose 2><choose -1>", "2|-1"},
    {"RefilledAfterAPick", "<fill 3><row 2><fill 2>", "2"},
};
EACH_ROW(ListBoxOnScreen, PickRows);

class ListColumns : public ListBoxOnScreen
{
  protected:
    // Whether the names and the prices have their bar, and where the names are scrolled.
    std::string Seen() override
    {
        const QScrollBar& Bar = *View().verticalScrollBar();
        return std::string(Bar.isVisible() ? "bar " : "- ") +
               (PriceBar().isVisible() ? "bar " : "- ") + std::to_string(Bar.value());
    }
};

constexpr Row ColumnRows[] = {
    {"ByTheBar", "<fill 50><scroll 20>", "- bar 20"},
    {"DifferentLengths", "<fill 50><add une de plus><scroll 20>", "bar bar 0"},
    {"WithoutItsNeighbour", "<fill 50><hide lst_Prix>", "bar - 0"},
};
EACH_ROW(ListColumns, ColumnRows);

using ListBoxHandlers = ListBoxOnScreen;

TEST_F(ListBoxHandlers, MayScrollAndEmptyTheList)
{
    Play("<fill 50><choose 49>");
    EXPECT_GT(PriceBar().value(), 20) << "the columns go where the choice is";
    EXPECT_EQ(PriceBar().value(), View().verticalScrollBar()->value());
    Names().OnClick = [this] { Names().Clear(); };
    Deeds["row"]("49");
    EXPECT_EQ(Seen(), "49");
}

} // namespace orvane
