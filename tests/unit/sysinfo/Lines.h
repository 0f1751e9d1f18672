// The lines of a list, for comparison as a whole.
#pragma once

#include <afxcoll.h>

#include <string>
#include <vector>

inline std::vector<std::string> TextsOf(const CStringList& lines)
{
    std::vector<std::string> texts;
    for (POSITION place = lines.GetHeadPosition(); place != nullptr;)
        texts.emplace_back(lines.GetNext(place).GetString());
    return texts;
}
