// What the rules say about an example, as a user sees it.
#pragma once

#include <string>

// Lines of an example and the texts of all findings in it.
struct JudgedLines
{
    const char* lines;
    const char* findings;
};

// Judges the description of the examples with these lines put into it; the texts of all findings.
std::string TextsOfFindings(const std::string& lines);
