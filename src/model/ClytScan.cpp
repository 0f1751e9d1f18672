#include "model/ClytScan.h"

#include <cstring>

const ClytSeparator* ClytScan::FindSeparator(const char* rest) const
{
    for (const ClytSeparator& separator : separators)
    {
        if (std::strncmp(rest, separator.text, static_cast<size_t>(separator.text.GetLength())) == 0)
            return &separator;
    }
    return nullptr;
}

const ClytTarget& ClytScan::TargetOf(const char* separatorText) const
{
    static const ClytTarget none;
    for (const ClytSeparator& separator : separators)
    {
        if (separator.text == separatorText)
            return separator.target;
    }
    return none;
}

void ClytScan::SetFixedLength(int pieceLength, const CString& statementName, const ClytSpan& place)
{
    length = pieceLength;
    lengthSpan = place;
    target = {statementName};
}

void ClytScan::AddSeparator(const CString& separatorText, const CString& statementName, const ClytSpan& place)
{
    separators.AddTail(std::make_unique<ClytSeparator>(separatorText, statementName, place));
    if (separatorText.IsEmpty())
        stops.AddAll();
    else
        stops.Add(separatorText[0]);
    length = 0;
    target = {};
}
