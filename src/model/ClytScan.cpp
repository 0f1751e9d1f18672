#include "model/ClytScan.h"

#include <cstring>

int ClytScan::FindSeparator(const char* rest, int& found) const
{
    for (POSITION place = separators.GetHeadPosition(); place != nullptr;)
    {
        const CString& text = separators.GetNext(place)->text;
        found = *rest == '\0' ? 0 : text.GetLength();
        if (std::strncmp(rest, text, static_cast<size_t>(found)) == 0)
            return 1;
    }
    return 0;
}

CString ClytScan::TargetOf(const CString& separatorText) const
{
    for (POSITION place = separators.GetHeadPosition(); place != nullptr;)
    {
        const ClytSeparator& separator = *separators.GetNext(place);
        if (separator.text == separatorText)
            return separator.target;
    }
    return {};
}

void ClytScan::SetFixedLength(int pieceLength, const CString& statementName, const ClytSpan& place)
{
    length = pieceLength;
    lengthSpan = place;
    target = statementName;
}

void ClytScan::AddSeparator(const CString& separatorText, const CString& statementName, const ClytSpan& place)
{
    separators.AddTail(std::make_unique<ClytSeparator>(separatorText, statementName, place));
    length = 0;
    target.Empty();
}
