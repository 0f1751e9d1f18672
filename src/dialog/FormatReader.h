// Takes the format of an output rule apart, piece by piece: a conversion is one, and so is every other character.
#pragma once

#include <afx.h>

#include <limits>

struct ClytFormatPiece
{
    enum class Kind
    {
        Text,   // goes into the result as it is
        Item,   // the next item goes there
        Failure // no `s` comes after its `%`, or after the point of a limit
    };

    Kind kind = Kind::Text;
    bool isConversion = false; // a `%` comes right before it
    int start = 0;             // in the format
    int length = 1;
    int limit = std::numeric_limits<int>::max(); // the most characters that are taken of the item
    bool hasWaste = false;                       // there is more between the limit and the `s`
};

// The format outlives it.
class ClytFormatReader
{
public:
    explicit ClytFormatReader(const CString& text) : format(text) {}

    bool IsAtEnd() const { return place >= format.GetLength(); }
    bool IsBeforeQuote() const { return !IsAtEnd() && format[place] == '"'; }
    // There is one. Nothing follows a `%` without its `s`.
    ClytFormatPiece Take();

private:
    void ReadMeaning(ClytFormatPiece& piece) const;

    const CString& format;
    int place = 0;
};
