#include "model/ClytScanner.h"

#include <cstring>

namespace
{

constexpr const char* brackets = "({[)}]";

} // namespace

const ClytTarget& ClytScanner::Cut(const ClytScan& scan, CString& piece)
{
    pieceDepth.fill(0);
    if (scan.GetLength() == 0)
        return CutToSeparator(scan, piece);
    CutLength(scan.GetLength(), piece);
    return scan.GetTarget();
}

void ClytScanner::CutLength(int length, CString& piece)
{
    const char* start = rest;
    for (; length > 0 && *rest != '\0'; --length, ++rest)
        CountBracket(*rest);
    piece.Append(start, static_cast<int>(rest - start));
}

// Plain text is appended in one go, and only characters that may be more than that are examined.
const ClytTarget& ClytScanner::CutToSeparator(const ClytScan& scan, CString& piece)
{
    const char* start = rest;
    const auto takePlain = [&] { piece.Append(start, static_cast<int>(rest - start)); };
    while (true)
    {
        rest = scan.FindStop(rest);
        if (*rest == '\0')
        {
            takePlain();
            return scan.TargetOf("Rest");
        }
        const bool isContent = CountBracket(*rest);
        const ClytSeparator* separator = isContent ? nullptr : scan.FindSeparator(rest);
        if (separator != nullptr)
        {
            takePlain();
            rest += separator->text.GetLength();
            return separator->target;
        }
        if (*rest == '"')
        {
            takePlain();
            TakeQuoted(piece);
            start = rest;
        }
        else
            ++rest;
    }
}

void ClytScanner::TakeQuoted(CString& piece)
{
    const bool keepsQuotes = !piece.IsEmpty();
    const char* start = rest + 1;
    const char* end = start + std::strcspn(start, "\"");
    const bool isClosed = *end != '\0';
    if (keepsQuotes)
        piece += '"';
    piece.Append(start, static_cast<int>(end - start));
    if (keepsQuotes && isClosed)
        piece += '"';
    rest = isClosed ? end + 1 : end;
}

bool ClytScanner::CountBracket(char ch)
{
    const char* bracket = ch != '\0' ? std::strchr(brackets, ch) : nullptr;
    if (bracket == nullptr)
        return false;
    const auto place = static_cast<size_t>(bracket - brackets);
    const size_t kind = place % kinds;
    if (place < kinds)
    {
        ++depth[kind];
        ++pieceDepth[kind];
        return false;
    }
    --depth[kind];
    if (pieceDepth[kind] == 0)
        return depth[kind] >= 1;
    --pieceDepth[kind];
    return true;
}
