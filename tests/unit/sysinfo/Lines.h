// The lines of a list, for comparison as a whole.
#pragma once

#include <afxcoll.h>

#include <string>
#include <vector>

using Texts = std::vector<std::string>;

inline Texts TextsOf(const CStringList& lines)
{
    Texts texts;
    for (POSITION place = lines.GetHeadPosition(); place != nullptr;)
        texts.emplace_back(lines.GetNext(place).GetString());
    return texts;
}
