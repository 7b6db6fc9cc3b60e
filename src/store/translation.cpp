#include "store/translation.h"

#include "base/failure.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

[[noreturn]] void Refuse(Tokens Query)
{
    std::string Sql;
    for (const Token& Each : Query)
        Sql += (Sql.empty() ? "" : " ") + Each.Content;
    ThrowUnreadable(Sql);
}

// The column that the query calls Name.
std::string ColumnOf(const Source& From, const std::string& Name)
{
    const int At = FindColumn(From.Columns, From.Name, Name);
    if (At < 0)
        throw Failure(FailureKind::DatabaseIncomplete, From.Name + "." + Name);
    return From.Columns[static_cast<std::size_t>(At)];
}

// Reads a query word by word.
class Reader
{
  public:
    explicit Reader(Tokens Query) : Query(Query) {}

    bool Takes(std::string_view Word)
    {
        const bool Found = At < Query.size() && Query[At].Is(Word);
        At += Found ? 1 : 0;
        return Found;
    }

    void Expect(std::string_view Word)
    {
        if (!Takes(Word))
            Refuse(Query);
    }

    std::string Name() { return Query[Expect(TokenKind::Word)].Content; }

    // The names in a SELECT list; none for *.
    std::vector<std::string> Names()
    {
        std::vector<std::string> Found;
        if (Takes("*"))
            return Found;
        do
            Found.push_back(Name());
        while (Takes(","));
        return Found;
    }

    // " WHERE ...", or nothing when the query has no condition.
    std::string Where(const Source& From)
    {
        return Takes("WHERE") ? " WHERE " + Condition(From) : std::string();
    }

    void ExpectEnd()
    {
        if (At < Query.size())
            Refuse(Query);
    }

  private:
    std::size_t Expect(TokenKind Kind)
    {
        if (At == Query.size() || Query[At].Kind != Kind)
            Refuse(Query);
        return At++;
    }

    std::string Condition(const Source& From)
    {
        std::string Sql = Comparison(From);
        while (Takes("AND"))
            Sql += " AND " + Comparison(From);
        return Sql;
    }

    std::string Comparison(const Source& From)
    {
        if (Takes("(")) {
            const std::string Inner = Condition(From);
            Expect(")");
            return "(" + Inner + ")";
        }
        const std::string Called = Name();
        const bool IsLike = Takes("LIKE");
        const bool IsGreater = !IsLike && Takes(">");
        if (!IsLike && !IsGreater)
            Expect("=");
        const bool IsText =
            IsLike || (!IsGreater && At < Query.size() && Query[At].Kind == TokenKind::Text);
        const Literal Given =
            LiteralAt(Query, Expect(IsText ? TokenKind::Text : TokenKind::Number));
        const std::string Column = QuotedName(ColumnOf(From, Called));
        if (IsLike)
            return "text_like(" + Column + ", ?)";
        if (!IsText)
            return Column + (IsGreater ? " > ?" : " = ?");
        if (Given.TheForm == Literal::Form::Folded)
            return "fold_case(" + Column + ") = ?";
        std::string Marks = "?";
        for (std::size_t i = 1; i < Given.Values.size(); ++i)
            Marks += ", ?";
        return Column + " COLLATE NOCASE IN (" + Marks + ")";
    }

    Tokens Query;
    std::size_t At = 0;
};

// The name of a saved query's hidden column with the place of its rows in its i-th table.
std::string PlaceColumn(int i)
{
    return QuotedName(PlacePrefix + std::to_string(i));
}

} // namespace

Translation TranslateSelect(Tokens Query, const SourceFinder& Find)
{
    Reader Next(Query);
    Next.Expect("SELECT");
    Translation Result;
    Result.Distinct = Next.Takes("DISTINCT");
    const std::vector<std::string> Names = Next.Names();
    Next.Expect("FROM");
    const Source& From = Find(Next.Name());
    Result.Source = From.Name;
    if (Names.empty())
        Result.Columns = From.Columns;
    for (const std::string& Name : Names)
        Result.Columns.push_back(ColumnOf(From, Name));
    for (const std::string& Column : Result.Columns)
        Result.Sql += (Result.Sql.empty() ? "SELECT " : ", ") + QuotedName(Column);
    if (From.IsTable && !Result.Distinct) {
        Result.Table = From.Name;
        Result.Sql += ", rowid";
    }
    Result.Sql += " FROM " + QuotedName(From.Name) + Next.Where(From) + " ORDER BY ";
    if (Next.Takes("ORDER")) {
        Next.Expect("BY");
        const std::string Column = QuotedName(ColumnOf(From, Next.Name()));
        // of texts that differ in case alone, a DISTINCT keeps the one stored first
        Result.Sql +=
            (Result.Distinct ? "fold_case(" + Column + ")" : Column) + " COLLATE FRENCH, ";
    }
    Next.ExpectEnd();
    for (const std::string& Term : From.Order)
        Result.Sql += (&Term == &From.Order.front() ? "" : ", ") + Term;
    return Result;
}

std::string TranslateDelete(Tokens Query, const SourceFinder& Find)
{
    Reader Next(Query);
    Next.Expect("DELETE");
    Next.Expect("*");
    Next.Expect("FROM");
    const Source& From = Find(Next.Name());
    if (!From.IsTable)
        throw Failure(FailureKind::Program, From.Name, "rows are deleted from tables only");
    const std::string Sql = "DELETE FROM " + QuotedName(From.Name) + Next.Where(From);
    Next.ExpectEnd();
    return Sql;
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
        Refuse(Query);
    return "CREATE TEMP VIEW IF NOT EXISTS " + QuotedName(Name) + " (" + PlaceColumns + Columns +
           ") AS SELECT" + Places + "," + Text.substr(Select.size());
}

} // namespace orvane
