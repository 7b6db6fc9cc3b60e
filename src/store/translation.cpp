#include "store/translation.h"

#include "base/failure.h"

#include <algorithm>

namespace orvane {

namespace {

[[noreturn]] void ThrowUnreadable(Tokens Query)
{
    std::string Sql;
    for (const Token& Each : Query)
        Sql += (Sql.empty() ? "" : " ") + Each.Content;
    throw Failure(FailureKind::Store, Sql, "unreadable query");
}

std::size_t FindKeyword(Tokens Query, std::string_view Keyword)
{
    for (std::size_t At = 0; At < Query.size(); ++At)
        if (Query[At].Kind == TokenKind::Word && Query[At].Is(Keyword))
            return At;
    return Query.size();
}

// Where the clauses of a query begin; one that is absent begins where the next one does.
struct Clauses
{
    bool Distinct = false;
    std::size_t Items = 0;
    std::size_t From = 0;
    std::size_t Where = 0;
    std::size_t OrderBy = 0;
};

Clauses SplitClauses(Tokens Query)
{
    if (Query.empty() || !Query[0].Is("SELECT"))
        ThrowUnreadable(Query);
    Clauses Found;
    Found.Distinct = Query.size() > 1 && Query[1].Is("DISTINCT");
    Found.Items = Found.Distinct ? 2 : 1;
    Found.From = FindKeyword(Query, "FROM");
    Found.OrderBy = FindKeyword(Query, "ORDER");
    Found.Where = std::min(FindKeyword(Query, "WHERE"), Found.OrderBy);
    if (Found.From + 1 >= Found.Where || Found.From <= Found.Items)
        ThrowUnreadable(Query);
    return Found;
}

std::size_t ColumnAt(const Source& From, const std::string& Name)
{
    const int At = FindColumn(From.Columns, From.Name, Name);
    if (At < 0)
        throw Failure(FailureKind::DatabaseIncomplete, From.Name + "." + Name);
    return static_cast<std::size_t>(At);
}

std::vector<std::string> SelectedColumns(Tokens Items, const Source& From)
{
    if (Items.size() == 1 && Items[0].Content == "*")
        return From.Columns;
    std::vector<std::string> Columns;
    for (const Token& Item : Items)
        if (Item.Kind == TokenKind::Word)
            Columns.push_back(From.Columns[ColumnAt(From, Item.Content)]);
    return Columns;
}

// " ORDER BY ..." of the query's own terms and then of the source's natural order.
std::string OrderOf(Tokens Terms, const Source& From, const ColumnResolver& Resolve)
{
    std::vector<std::string> All;
    for (const Token& Term : Terms) {
        if (Term.Kind != TokenKind::Word)
            continue;
        if (Term.Is("DESC") && !All.empty())
            All.back() += " DESC";
        else if (!Term.Is("ASC"))
            All.push_back(Resolve(Term.Content) + " COLLATE FRENCH");
    }
    All.insert(All.end(), From.Order.begin(), From.Order.end());
    std::string Sql;
    for (const std::string& Term : All)
        Sql += (Sql.empty() ? " ORDER BY " : ", ") + Term;
    return Sql;
}

std::string WhereOf(Tokens Query, std::size_t Where, std::size_t End, const ColumnResolver& Resolve,
                    Literals How)
{
    return Where >= End ? std::string()
                        : " WHERE " + TranslateCondition(Query, Where + 1, End, Resolve, How);
}

// "Table.Column" of a saved query's text as a qualified SQL name.
std::string QualifiedName(const std::string& Name)
{
    const auto Dot = Name.rfind('.');
    if (Dot == std::string::npos)
        throw Failure(FailureKind::DatabaseIncomplete, Name, "a saved query names its tables");
    return QuotedName(Name.substr(0, Dot)) + "." + QuotedName(Name.substr(Dot + 1));
}

// The FROM of a saved query, joins included.
class JoinTranslator
{
  public:
    JoinTranslator(Tokens From, const SourceFinder& Find) : From(From), Find(Find) {}

    std::string Run()
    {
        while (At < From.size())
            Step();
        return Sql;
    }

    // Each table's row number, first table first: the order of the query's rows.
    std::vector<std::string> RowNumbers;

  private:
    void Step()
    {
        const Token& Current = From[At++];
        if (Current.Is("JOIN"))
            TableNext = true;
        if (Current.Is("ON"))
            TableNext = false;
        if (Current.Kind != TokenKind::Word || Current.Is("JOIN") || Current.Is("ON") ||
            Current.Is("INNER") || Current.Is("LEFT") || Current.Is("RIGHT") || Current.Is("AND") ||
            Current.Is("OR"))
            Sql += " " + Current.Content;
        else if (TableNext)
            AddTable(Current.Content);
        else
            Sql += " " + QualifiedName(Current.Content);
    }

    void AddTable(const std::string& Name)
    {
        std::string Alias = Name;
        if (At + 1 < From.size() && From[At].Is("AS")) {
            Alias = From[At + 1].Content;
            At += 2;
        }
        TableNext = false;
        Sql += " " + Find(Name).From + " AS " + QuotedName(Alias);
        RowNumbers.push_back(QuotedName(Alias) + ".rowid");
    }

    Tokens From;
    const SourceFinder& Find;
    std::size_t At = 0;
    bool TableNext = true;
    std::string Sql;
};

} // namespace

Translation TranslateSelect(Tokens Query, const SourceFinder& Find)
{
    const Clauses Parts = SplitClauses(Query);
    if (Parts.From + 2 != Parts.Where) // joins are for saved queries
        ThrowUnreadable(Query);
    const Source& From = Find(Query[Parts.From + 1].Content);
    const ColumnResolver Resolve = [&](const std::string& Name) {
        return QuotedName(From.Columns[ColumnAt(From, Name)]);
    };
    Translation Result;
    Result.Source = From.Name;
    Result.Distinct = Parts.Distinct;
    Result.Columns = SelectedColumns(Query.subspan(Parts.Items, Parts.From - Parts.Items), From);
    for (const std::string& Column : Result.Columns)
        Result.Sql += (Result.Sql.empty() ? "SELECT " : ", ") + QuotedName(Column);
    if (From.IsTable && !Parts.Distinct) {
        Result.Table = From.Name;
        Result.Sql += ", rowid";
    }
    const std::size_t Terms = std::min(Parts.OrderBy + 2, Query.size());
    Result.Sql += " FROM " + From.From +
                  WhereOf(Query, Parts.Where, Parts.OrderBy, Resolve, Literals::Bound) +
                  OrderOf(Query.subspan(Terms), From, Resolve);
    return Result;
}

std::string TranslateDelete(Tokens Query, const SourceFinder& Find)
{
    const std::size_t FromAt = FindKeyword(Query, "FROM");
    if (Query.empty() || !Query[0].Is("DELETE") || FromAt + 1 >= Query.size())
        ThrowUnreadable(Query);
    const Source& From = Find(Query[FromAt + 1].Content);
    if (!From.IsTable)
        throw Failure(FailureKind::Store, From.Name, "rows are deleted from tables only");
    const ColumnResolver Resolve = [&](const std::string& Name) {
        return QuotedName(From.Columns[ColumnAt(From, Name)]);
    };
    return "DELETE FROM " + From.From +
           WhereOf(Query, FindKeyword(Query, "WHERE"), Query.size(), Resolve, Literals::Bound);
}

Source TranslateSavedQuery(const std::string& Name, Tokens Query, const SourceFinder& Find)
{
    const Clauses Parts = SplitClauses(Query);
    if (Parts.Distinct || Parts.OrderBy < Query.size()) // its rows have an order of their own
        ThrowUnreadable(Query);
    JoinTranslator Joins(Query.subspan(Parts.From + 1, Parts.Where - Parts.From - 1), Find);
    const std::string From = Joins.Run();
    Source Result{Name, {}, {}, {}, false};
    std::string Items;
    for (std::size_t At = Parts.Items; At < Parts.From; ++At) {
        if (Query[At].Kind != TokenKind::Word)
            continue;
        const std::string& Column = Query[At].Content;
        Items += (Items.empty() ? "" : ", ") + QualifiedName(Column) + " AS " + QuotedName(Column);
        Result.Columns.push_back(Column);
    }
    for (std::size_t i = 0; i < Joins.RowNumbers.size(); ++i) {
        Result.Order.push_back(QuotedName("#" + std::to_string(i)));
        Items += ", " + Joins.RowNumbers[i] + " AS " + Result.Order.back();
    }
    Result.From = "(SELECT " + Items + " FROM" + From +
                  WhereOf(Query, Parts.Where, Parts.OrderBy, QualifiedName, Literals::Written) +
                  ")";
    return Result;
}

} // namespace orvane
