// One token of a description line: its text, with blanks at both ends and quotes taken off, and the delimiter that ended
// it. The readers decide on the delimiter as much as on the text.
#pragma once

#include <afxtempl.h>

class ClytToken : public CObject
{
public:
    // The text stands between two places of the line.
    ClytToken(const char* line, const char* start, const char* end, char endedBy)
        : text(start, static_cast<int>(end - start)), column(static_cast<int>(start - line)), delimiter(endedBy)
    {
    }
    ClytToken(ClytToken&& other) noexcept
        : text(std::move(other.text)), column(other.column), delimiter(other.delimiter)
    {
    }

    const CString& GetText() const { return text; }
    // Where the text begins in the line, in bytes from 0.
    int GetColumn() const { return column; }
    char GetDelimiter() const { return delimiter; }
    // Nothing before the delimiter, such as what stands between two delimiters in a row.
    bool IsBare(char endedBy) const { return delimiter == endedBy && text.IsEmpty(); }

private:
    CString text;
    int column;
    char delimiter;
};

// Held by value: a line's tokens cost one allocation each.
using ClytTokenList = CList<ClytToken>;
