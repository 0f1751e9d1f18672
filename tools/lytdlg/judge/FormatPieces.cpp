#include "lytdlg/judge/FormatPieces.h"

#include "dialog/FormatReader.h"

#include <algorithm>
#include <optional>

namespace lytdlg
{

namespace
{

// Nothing for a letter of the text.
std::optional<FormatPieceKind> MeaningOf(const ClytFormatPiece& piece)
{
    using enum FormatPieceKind;
    switch (piece.kind)
    {
    case ClytFormatPiece::Kind::Text: return piece.isConversion ? std::optional(NoConversion) : std::nullopt;
    case ClytFormatPiece::Kind::Failure: return piece.isConversion ? OpenPercent : LonePoint;
    default: break;
    }
    if (!piece.isConversion)
        return LoneS;
    if (piece.hasWaste)
        return LimitAndText;
    return piece.limit == 0 ? NoLimit : Item;
}

} // namespace

bool TakesItem(FormatPieceKind kind)
{
    return kind == FormatPieceKind::Item || kind == FormatPieceKind::LoneS || kind == FormatPieceKind::NoLimit ||
           kind == FormatPieceKind::LimitAndText;
}

std::vector<FormatPiece> PiecesOf(const std::string& format)
{
    std::vector<FormatPiece> pieces;
    if (format.find('%') == std::string::npos)
        return pieces;
    const CString text(format.c_str());
    ClytFormatReader reader(text);
    while (!reader.IsAtEnd())
    {
        const ClytFormatPiece piece = reader.Take();
        const size_t sign = piece.isConversion ? 1 : 0;
        if (const std::optional<FormatPieceKind> kind = MeaningOf(piece))
            pieces.push_back(
                {*kind, static_cast<size_t>(piece.start) - sign, static_cast<size_t>(piece.length) + sign});
    }
    return pieces;
}

size_t TakenItems(const std::string& format)
{
    return static_cast<size_t>(
        std::ranges::count_if(PiecesOf(format), [](const FormatPiece& piece) { return TakesItem(piece.kind); }));
}

} // namespace lytdlg
