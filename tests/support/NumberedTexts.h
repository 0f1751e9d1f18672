// The section of the numbered errors for a language file. Each message is its number, with the argument in apostrophes.
#pragma once

#include "environment/ErrorTable.h"

#include <string>

inline std::string NumberedTexts(const std::string& before = "")
{
    std::string texts = "[" + std::string(lytErrorSection) + "]\r\n";
    for (const ClytErrorRow& error : lytErrors)
        texts += std::string(error.number) + "=" + before + error.number + " ''\r\n";
    return texts;
}
