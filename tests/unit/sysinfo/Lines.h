// The lines of a list, for comparison as a whole.
#pragma once

#include "base/Iteration.h"

#include <string>
#include <vector>

using Texts = std::vector<std::string>;

inline Texts TextsOf(const CStringList& lines)
{
    Texts texts;
    for (const CString& line : lines)
        texts.emplace_back(line.GetString());
    return texts;
}
