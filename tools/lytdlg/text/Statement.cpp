#include "lytdlg/text/Statement.h"

#include "base/Words.h"
#include "dlgfile/Tokenize.h"

namespace lytdlg
{

namespace
{

const char* SkipBlanks(const char* text)
{
    while (lytIsSpace(*text))
        ++text;
    return text;
}

// Walks over the words of a line that the library has cut, to find what is around them.
class Cutter
{
public:
    Cutter(const char* line, const DelimiterSet& delimiters) : m_line(line), m_delimiters(delimiters), m_place(line) {}

    // False where something is between a closing quote and the delimiter.
    bool Take(const ClytToken& token)
    {
        const char* start = SkipBlanks(m_place);
        const char* end = m_line + token.GetColumn() + token.GetText().GetLength();
        Word word = {token.GetText().GetString(), *start == '"', token.GetDelimiter()};
        if (word.isQuoted)
        {
            const char* quote = SkipBlanks(end);
            word.text.assign(start + 1, quote);
            end = quote + 1;
        }
        m_statement.words.push_back(word);
        m_place = m_delimiters.FindIn(end);
        const bool isAll = SkipBlanks(end) >= m_place;
        m_place += *m_place != '\0' && *m_place != ';' ? 1 : 0;
        return isAll;
    }

    Statement Finish()
    {
        const char* rest = SkipBlanks(m_place);
        m_statement.commentColumn = static_cast<size_t>(rest - m_line);
        m_statement.comment = rest;
        m_statement.comment.erase(m_statement.comment.find_last_not_of(" \t\n") + 1);
        return std::move(m_statement);
    }

private:
    const char* m_line;
    const DelimiterSet& m_delimiters;
    const char* m_place;
    Statement m_statement;
};

// In these lines the readers look at the words alone.
bool IgnoresDelimiters(ClytLineKind kind)
{
    return kind <= ClytLineKind::Controls;
}

bool IsSameToken(const ClytToken& left, const ClytToken& right, ClytLineKind kind)
{
    return left.GetText() == right.GetText() &&
           (IgnoresDelimiters(kind) || left.GetDelimiter() == right.GetDelimiter());
}

} // namespace

std::optional<Statement> CutStatement(const std::string& line, ClytLineKind kind)
{
    const DelimiterSet delimiters(lytFormOf(kind).delimiters);
    ClytTokenList tokens;
    if (lytTokenize(line.c_str(), delimiters, tokens) != nullptr)
        return std::nullopt;
    Cutter cutter(line.c_str(), delimiters);
    for (POSITION place = tokens.GetHeadPosition(); place != nullptr;)
    {
        if (!cutter.Take(tokens.GetNext(place)))
            return std::nullopt;
    }
    return cutter.Finish();
}

bool ReadsAlike(const std::string& left, const std::string& right, ClytLineKind kind)
{
    const DelimiterSet delimiters(lytFormOf(kind).delimiters);
    ClytTokenList ofLeft;
    ClytTokenList ofRight;
    const bool isLeftOpen = lytTokenize(left.c_str(), delimiters, ofLeft) != nullptr;
    const bool isRightOpen = lytTokenize(right.c_str(), delimiters, ofRight) != nullptr;
    if (isLeftOpen || isRightOpen || ofLeft.GetCount() != ofRight.GetCount())
        return false;
    POSITION inRight = ofRight.GetHeadPosition();
    for (POSITION inLeft = ofLeft.GetHeadPosition(); inLeft != nullptr;)
    {
        if (!IsSameToken(ofLeft.GetNext(inLeft), ofRight.GetNext(inRight), kind))
            return false;
    }
    return true;
}

} // namespace lytdlg
