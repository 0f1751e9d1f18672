// The format of an output rule, cut into what takes an item and what does not, as the composition takes it apart.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

enum class FormatPieceKind
{
    Item,         // `%s`, or `%.` with a number and an `s`
    LoneS,        // a letter that takes an item as `%s` does
    LonePoint,    // a limit without its `s`: the composition fails
    OpenPercent,  // no `s` follows: the composition fails
    NoConversion, // from a `%` to the next `s`: it goes into the text without the `%`
    NoLimit,      // a limit without a number, or of none: an item is taken, and nothing of it is left
    LimitAndText  // a limit and more up to the next `s`: an item is taken, and the rest is lost
};

struct FormatPiece
{
    FormatPieceKind kind = FormatPieceKind::Item;
    size_t start = 0;
    size_t length = 0;
};

bool TakesItem(FormatPieceKind kind);

// The pieces of a format that are more than a letter of the text; none in a format without a `%`.
std::vector<FormatPiece> PiecesOf(const std::string& format);
// How many items the format takes.
size_t TakenItems(const std::string& format);

} // namespace lytdlg
