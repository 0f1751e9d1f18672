#include "dlgfile/Tokenize.h"

#include "base/Words.h"
#include "environment/ClytException.h"

#include <cstring>

namespace
{

const char* SkipSpace(const char* text)
{
    while (lytIsSpace(*text))
        ++text;
    return text;
}

void AddTrimmed(ClytTokenList& tokens, const char* line, const char* start, const char* end, char delimiter)
{
    while (start < end && lytIsSpace(*start))
        ++start;
    while (start < end && lytIsSpace(end[-1]))
        --end;
    tokens.AddTail().Set(line, start, end, delimiter);
}

// The quote that closes the one before `text`, or null. A quote after a backslash is content, and the backslash stays.
const char* FindClosingQuote(const char* text)
{
    const char* quote = std::strchr(text, '"');
    while (quote != nullptr && quote > text && quote[-1] == '\\')
        quote = std::strchr(quote + 1, '"');
    return quote;
}

// A last token without a delimiter ends as if the line went on with its line end.
char DelimiterAt(const char* end)
{
    return *end != '\0' ? *end : '\n';
}

// The place after the bracket that closes the group.
const char* FindGroupEnd(const char* text)
{
    for (int depth = 1; depth > 0; ++text)
    {
        text = std::strpbrk(text, "()");
        if (text == nullptr)
            lytRaise(lytError("BracketOpen"), ClytPrefix::OfKey(lytError("ListText")));
        depth += *text == '(' ? 1 : -1;
    }
    return text;
}

} // namespace

const char* lytTokenize(const char* line, const DelimiterSet& delimiters, ClytTokenList& tokens)
{
    tokens.RemoveAll();
    const char* start = SkipSpace(line);
    // A `;` that begins a token starts a comment, also where it delimits nothing.
    while (*start != '\0' && *start != ';')
    {
        const char* textEnd = nullptr;
        if (*start == '"')
        {
            textEnd = FindClosingQuote(++start);
            if (textEnd == nullptr)
                return start - 1;
        }
        // Text between a closing quote and the delimiter is dropped.
        const char* end = delimiters.FindIn(textEnd != nullptr ? textEnd + 1 : start);
        AddTrimmed(tokens, line, start, textEnd != nullptr ? textEnd : end, DelimiterAt(end));
        // A `;` is left in place, and so ends the line.
        start = SkipSpace(*end != '\0' && *end != ';' ? end + 1 : end);
    }
    return nullptr;
}

// `x(a,b)` is one token with its brackets; `(` joins the delimiters for this run. There are no quotes and no comments,
// and a token without brackets keeps its blanks.
void lytTokenizeGrouped(const char* text, const char* delimiters, ClytTokenList& tokens)
{
    tokens.RemoveAll();
    DelimiterSet ends(delimiters);
    ends.Add('(');
    const char* start = SkipSpace(text);
    while (*start != '\0')
    {
        const char* end = ends.FindIn(start);
        if (*end != '(')
            tokens.AddTail().Set(text, start, end, DelimiterAt(end));
        else
        {
            end = FindGroupEnd(end + 1);
            if (*end != ',')
                end = ends.FindIn(end);
            AddTrimmed(tokens, text, start, end, ')');
        }
        start = *end != '\0' ? end + 1 : end;
    }
}
