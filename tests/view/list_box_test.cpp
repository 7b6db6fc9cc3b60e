#include "stage.h"
#include "view/list_box_view.h"

#include <QAccessible>
#include <QClipboard>
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
        Deeds["price"] = [this](auto& Row) {
            ClickRow(The<QListView>("lst_Prix"), Row.toInt());
            Log() << Focused().objectName();
        };
        Deeds["scroll"] = [this](const QString& Row) { PriceBar().setValue(Row.toInt()); };
        Deeds["copied"] = [this](auto&) {
            Log() << QGuiApplication::clipboard()->text().replace('\t', ',').replace('\n', ';');
        };
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
    {"AColumnLeavesTheKeyboardToTheFirst", "<fill 3><price 1><Down>", "lst_Noms|0"},
    {"CopiesTheChosenRow", "<fill 3><choose 1><Ctrl+C><copied>", "1|Objet 1,10;"},
    {"CopiesAllRowsWithoutAChoice", "<fill 2><Ctrl+C><copied>", "Objet 0,0;Objet 1,10;"},
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

class ListsForReaders : public ListBoxOnScreen
{
  protected:
    QList<QAccessibleInterface*> Tables()
    {
        QList<QAccessibleInterface*> Result;
        auto& Area = Checked(QAccessible::queryAccessibleInterface(View().parent()), "area");
        for (int i = 0; i < Area.childCount(); ++i)
            if (Area.child(i)->role() == QAccessible::Table) {
                EXPECT_EQ(Area.indexOfChild(Area.child(i)), i);
                Result << Area.child(i);
            }
        return Result;
    }
    QAccessibleInterface& Table() { return *Tables().at(0); }

    // Its cells, line by line, each found again at its place.
    std::string Seen() override
    {
        QAccessibleInterface& Whole = Table();
        const QAccessibleTableInterface& Rows = *Whole.tableInterface();
        EXPECT_EQ(Whole.childCount(), (Rows.rowCount() + 1) * Rows.columnCount());
        QStringList Result;
        for (int i = 0; i < Whole.childCount(); ++i) {
            QAccessibleInterface& Cell = *Whole.child(i);
            auto& Place = *Cell.tableCellInterface();
            EXPECT_EQ(Whole.indexOfChild(&Cell), i);
            EXPECT_EQ(Rows.cellAt(Place.rowIndex(), Place.columnIndex()), &Cell);
            if (Place.columnIndex() == 0)
                Result << "";
            Result.last() += Cell.text(QAccessible::Name) + ";";
            if (Place.rowIndex() < 0) {
                EXPECT_EQ(Cell.role(), QAccessible::ColumnHeader);
                continue;
            }
            EXPECT_EQ(Place.columnHeaderCells().at(0), Whole.child(Place.columnIndex()));
            const QPoint Middle = Cell.rect().center();
            EXPECT_EQ(Whole.childAt(Middle.x(), Middle.y()), &Cell);
        }
        return FromQt(Result.join('|'));
    }
};

TEST_F(ListsForReaders, AreOneTableWithARowForEachEntry)
{
    Names().Called = "Objet fabriqué";
    Atelier().lst_Prix.Called = "Prix";
    Play("<fill 2><choose 1>");
    ASSERT_EQ(Tables().size(), 1);
    EXPECT_EQ(Seen(), "Objet fabriqué;Prix;|Objet 0;0;|Objet 1;10;");
    EXPECT_EQ(Table().text(QAccessible::Name), "Objet fabriqué");
    EXPECT_EQ(Table().tableInterface()->rowDescription(0), "Objet 0, Prix 0");

    const QAccessibleInterface* Chosen = Table().focusChild();
    ASSERT_NE(Chosen, nullptr);
    EXPECT_EQ(Chosen->text(QAccessible::Name), "Objet 1");
    EXPECT_EQ(Chosen->text(QAccessible::Description), "Prix 10");
    EXPECT_TRUE(Chosen->state().focused && Chosen->state().selected);
    EXPECT_EQ(Table().tableInterface()->selectedRows(), QList<int>{1});
    EXPECT_EQ(Table().tableInterface()->selectedCellCount(), 2);

    EXPECT_TRUE(Table().tableInterface()->selectRow(0));
    EXPECT_EQ(ListBoxOnScreen::Seen(), "1|0");
    Play("<fill 1>");
    EXPECT_EQ(Seen(), "Objet fabriqué;Prix;|Objet 0;0;");
    EXPECT_EQ(Table().focusChild(), &Table()) << "no row is chosen";
    Play("<add une de plus>");
    EXPECT_EQ(Tables().size(), 2) << "lists of different lengths are none's columns";
    EXPECT_EQ(Seen(), "Objet fabriqué;|Objet 0;|une de plus;");
}

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
