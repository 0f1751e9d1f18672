#include "lytdlg/judge/FormatPieces.h"

#include "base/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool TakesItem(FormatPieceKind kind)
{
    return kind == FormatPieceKind::Item || kind == FormatPieceKind::LoneS || kind == FormatPieceKind::NoLimit ||
           kind == FormatPieceKind::LimitAndText;
}

// What comes between a `%` and the `s`: nothing, or a limit.
FormatPieceKind KindOfConversion(const std::string& conversion)
{
    if (conversion.empty())
        return FormatPieceKind::Item;
    const size_t point = conversion.starts_with("0.") ? 1 : 0;
    if (conversion[point] != '.')
        return FormatPieceKind::NoConversion;
    const char* rest = nullptr;
    const int limit = lytNumberOf(conversion.c_str() + point + 1, &rest);
    if (*rest != '\0')
        return FormatPieceKind::LimitAndText;
    return limit <= 0 ? FormatPieceKind::NoLimit : FormatPieceKind::Item;
}

} // namespace

std::vector<FormatPiece> PiecesOf(const std::string& format)
{
    std::vector<FormatPiece> pieces;
    if (format.find('%') == std::string::npos)
        return pieces;
    for (size_t place = 0; place < format.size(); ++place)
    {
        if (format[place] == 's')
            pieces.push_back({FormatPieceKind::LoneS, place, 1});
        else if (format[place] == '.')
            pieces.push_back({FormatPieceKind::LonePoint, place, 1});
        if (format[place] != '%')
            continue;
        const size_t end = format.find('s', place);
        if (end == std::string::npos)
        {
            pieces.push_back({FormatPieceKind::OpenPercent, place, 1});
            return pieces;
        }
        pieces.push_back({KindOfConversion(format.substr(place + 1, end - place - 1)), place, end + 1 - place});
        place = end;
    }
    return pieces;
}

size_t TakenItems(const std::string& format)
{
    return static_cast<size_t>(
        std::ranges::count_if(PiecesOf(format), [](const FormatPiece& piece) { return TakesItem(piece.kind); }));
}

} // namespace lytdlg
