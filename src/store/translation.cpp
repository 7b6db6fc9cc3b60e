#include "store/translation.h"

#include "base/failure.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

[[noreturn]] void ThrowUnreadable(Tokens Query)
{
    std::string Sql;
    for (const Token& Each : Query)
        Sql += (Sql.empty() ? "" : " ") + Each.Content;
    throw Failure(FailureKind::Store, Sql, "unreadable query");
}

// The name of a saved query's hidden column with the place of its rows in its i-th table.
std::string PlaceColumn(int i)
{
    return QuotedName(PlacePrefix + std::to_string(i));
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
    Result.Sql += " FROM " + QuotedName(From.Name) +
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
    return "DELETE FROM " + QuotedName(From.Name) +
           WhereOf(Query, FindKeyword(Query, "WHERE"), Query.size(), Resolve, Literals::Bound);
}

std::string ViewOf(const std::string& Name, const std::string& Text, const SourceFinder& Find)
{
    constexpr std::string_view Select = "SELECT";
    const std::vector<Token> Query = Tokenize(Text);
    std::string Columns;
    std::string PlaceColumns;
    std::string Places;
    int Count = 0;
    bool ListEnded = false;
    bool TableNext = false;
    for (std::size_t At = 1; At < Query.size(); ++At) {
        const Token& Each = Query[At];
        if (Each.Is("FROM") || Each.Is("JOIN"))
            ListEnded = TableNext = true;
        else if (Each.Kind == TokenKind::Word && !ListEnded)
            Columns += ", " + QuotedName(Each.Content);
        else if (Each.Kind == TokenKind::Word && std::exchange(TableNext, false)) {
            const bool Renamed = At + 2 < Query.size() && Query[At + 1].Is("AS");
            for (const std::string& Term : Find(Each.Content).Order) {
                Places += (Count == 0 ? " " : ", ") +
                          QuotedName(Query[Renamed ? At + 2 : At].Content) + "." + Term;
                PlaceColumns += (Count == 0 ? "" : ", ") + PlaceColumn(Count);
                ++Count;
            }
        }
    }
    // SQLite would mind the case of a text.
    const bool HasText = std::ranges::find(Query, TokenKind::Text, &Token::Kind) != Query.end();
    if (!Text.starts_with(Select) || Count == 0 || HasText)
        ThrowUnreadable(Query);
    return "CREATE TEMP VIEW IF NOT EXISTS " + QuotedName(Name) + " (" + PlaceColumns + Columns +
           ") AS SELECT" + Places + "," + Text.substr(Select.size());
}

} // namespace orvane
