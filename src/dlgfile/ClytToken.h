// One token of a description line: its text, with blanks at both ends and quotes taken off, and the delimiter that ended
// it. The readers decide on the delimiter as much as on the text.
#pragma once

#include <afx.h>

#include <vector>

class ClytToken : public CObject
{
public:
    ClytToken() = default;
    ClytToken(ClytToken&& other) noexcept
        : text(std::move(other.text)), column(other.column), delimiter(other.delimiter)
    {
    }

    // Takes the text between two places of the line.
    void Set(const char* line, const char* start, const char* end, char endedBy)
    {
        text.Empty();
        text.Append(start, static_cast<int>(end - start));
        column = static_cast<int>(start - line);
        delimiter = endedBy;
    }

    const CString& GetText() const { return text; }
    // Where the text begins in the line, in bytes from 0.
    int GetColumn() const { return column; }
    char GetDelimiter() const { return delimiter; }
    // Nothing before the delimiter, such as the text between two delimiters in a row.
    bool IsBare(char endedBy) const { return delimiter == endedBy && text.IsEmpty(); }

private:
    CString text;
    int column = 0;
    char delimiter = '\0';
};

// The tokens of a line. They are used again for the next line, so that a line costs no further allocation. A POSITION
// stays valid until the list is changed.
class ClytTokenList
{
public:
    int GetCount() const { return static_cast<int>(count); }
    bool IsEmpty() const { return count == 0; }

    // An empty token at the end, to be set.
    ClytToken& AddTail()
    {
        if (count == tokens.size())
            tokens.emplace_back();
        return tokens[count++];
    }
    void RemoveAll() { count = 0; }

    const ClytToken& GetHead() const { return GetAt(GetHeadPosition()); }
    const ClytToken& GetTail() const { return GetAt(IsEmpty() ? nullptr : Place(count - 1)); }
    POSITION GetHeadPosition() const { return IsEmpty() ? nullptr : Place(0); }
    const ClytToken& GetAt(POSITION position) const
    {
        if (position == nullptr)
            AfxThrowInvalidArgException();
        return *static_cast<const ClytToken*>(static_cast<const void*>(position));
    }
    // Gives the token and moves the position to the next one, null after the last.
    const ClytToken& GetNext(POSITION& position) const
    {
        const ClytToken& token = GetAt(position);
        const auto next = static_cast<size_t>(&token - tokens.data()) + 1;
        position = next < count ? Place(next) : nullptr;
        return token;
    }

private:
    POSITION Place(size_t index) const
    {
        return static_cast<POSITION>(static_cast<void*>(const_cast<ClytToken*>(&tokens[index])));
    }

    std::vector<ClytToken> tokens;
    size_t count = 0; // of those that belong to the line
};
