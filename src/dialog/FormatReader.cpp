#include "dialog/FormatReader.h"

#include "base/Words.h"

#include <algorithm>

ClytFormatPiece ClytFormatReader::Take()
{
    ClytFormatPiece piece;
    piece.isConversion = format[place] == '%';
    piece.start = piece.isConversion ? place + 1 : place;
    if (piece.isConversion)
        piece.length = format.Find('s', place) - place;
    if (piece.length < 0)
    {
        piece.kind = ClytFormatPiece::Kind::Failure;
        piece.length = 0;
        place = format.GetLength();
        return piece;
    }
    place = piece.start + piece.length;
    ReadMeaning(piece);
    return piece;
}

// An item is "s", or a limit before it (".5s", "0.5s"). An ordinary `s` takes one as `%s` does, and an ordinary point is a
// limit without its `s`. Formats in use rely on the former.
void ClytFormatReader::ReadMeaning(ClytFormatPiece& piece) const
{
    const char* const text = format.GetString() + piece.start;
    const char* const last = text + piece.length - 1;
    const char* const point = *text == '0' && text < last ? text + 1 : text;
    if (*point == '.')
    {
        const char* rest = nullptr;
        piece.limit = std::max(0, lytNumberOf(point + 1, &rest));
        piece.hasWaste = rest != last;
        piece.kind = *last == 's' ? ClytFormatPiece::Kind::Item : ClytFormatPiece::Kind::Failure;
    }
    else if (text == last && *text == 's')
        piece.kind = ClytFormatPiece::Kind::Item;
}
