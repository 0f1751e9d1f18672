// A language folder in which the message of each numbered error is the number with its argument in apostrophes.
#pragma once

#include "support/LanguageFolder.h"
#include "support/NumberedTexts.h"
#include "support/RaisedMessage.h"

// What the message of the class library's invalid-argument failure reads as.
inline constexpr const char* missingArgument = "An argument is missing or out of range.";

class ErrorTexts : public LanguageFolder
{
public:
    // `more` is put after the section of the errors.
    explicit ErrorTexts(const std::string& more = "") : LanguageFolder(NumberedTexts() + more) {}
};
