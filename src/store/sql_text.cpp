#include "store/sql_text.h"

#include "base/failure.h"

namespace orvane {

namespace {

bool IsDigit(char Letter)
{
    return Letter >= '0' && Letter <= '9';
}

// Letters of a name: any beyond ASCII, and the dot between a table and its column.
bool IsNameLetter(char Letter)
{
    return static_cast<unsigned char>(Letter) >= 0x80 || IsDigit(Letter) || Letter == '_' ||
           Letter == '.' || (Letter >= 'a' && Letter <= 'z') || (Letter >= 'A' && Letter <= 'Z');
}

char Lower(char Letter)
{
    return Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter + 32) : Letter;
}

// Between the two signs; the closing one is doubled inside.
std::string Enclosed(std::string_view Text, char Opening, char Closing)
{
    std::string Result(1, Opening);
    for (const char Letter : Text) {
        if (Letter == Closing)
            Result += Closing;
        Result += Letter;
    }
    return Result + Closing;
}

class Scanner
{
  public:
    explicit Scanner(std::string_view Sql) : Sql(Sql) {}

    std::vector<Token> Run()
    {
        std::vector<Token> Tokens;
        while (true) {
            while (At < Sql.size() && (Sql[At] == ' ' || Sql[At] == '\n' || Sql[At] == '\t'))
                ++At;
            if (At == Sql.size())
                return Tokens;
            Tokens.push_back(Next());
        }
    }

  private:
    Token Next()
    {
        const char First = Sql[At];
        if (First == '"' || First == '\'')
            return {TokenKind::Text, Delimited(First)};
        if (First == '[')
            return {TokenKind::Word, Delimited(']')};
        if (IsDigit(First) || (First == '-' && At + 1 < Sql.size() && IsDigit(Sql[At + 1]))) {
            ++At;
            return {TokenKind::Number, First + While(IsDigit)};
        }
        if (IsNameLetter(First))
            return {TokenKind::Word, While(IsNameLetter)};
        ++At;
        if (std::string_view("(),*=>").find(First) == std::string_view::npos)
            ThrowUnreadable(Sql);
        return {TokenKind::Symbol, std::string(1, First)};
    }

    template <class Predicate>
    std::string While(Predicate Belongs)
    {
        const std::size_t Start = At;
        while (At < Sql.size() && Belongs(Sql[At]))
            ++At;
        return std::string(Sql.substr(Start, At - Start));
    }

    // From the opening sign to the closing one; a doubled closing sign stands for itself.
    std::string Delimited(char Closing)
    {
        std::string Content;
        for (++At; At < Sql.size(); ++At) {
            if (Sql[At] == Closing) {
                ++At;
                if (At == Sql.size() || Sql[At] != Closing)
                    return Content;
            }
            Content += Sql[At];
        }
        ThrowUnreadable(Sql);
    }

    std::string_view Sql;
    std::size_t At = 0;
};

} // namespace

std::string Quoted(std::string_view Text)
{
    return Enclosed(Text, '"', '"');
}

std::string QuotedName(std::string_view Name)
{
    return Enclosed(Name, '"', '"');
}

std::string Bracketed(std::string_view Name)
{
    return Enclosed(Name, '[', ']');
}

bool Token::Is(std::string_view Keyword) const
{
    if (Kind == TokenKind::Text || Content.size() != Keyword.size())
        return false;
    for (std::size_t i = 0; i < Keyword.size(); ++i)
        if (Lower(Content[i]) != Lower(Keyword[i]))
            return false;
    return true;
}

std::vector<Token> Tokenize(std::string_view Sql)
{
    return Scanner(Sql).Run();
}

void ThrowUnreadable(std::string_view Sql)
{
    throw Failure(FailureKind::Store, {}, "unreadable query: " + std::string(Sql));
}

} // namespace orvane
