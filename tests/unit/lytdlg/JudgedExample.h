// What the rules say about an example, as a user sees it.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

// Lines of an example and the texts of all findings in it.
struct JudgedLines
{
    const char* lines;
    const char* findings;
};

// Judges the description of the examples with these lines put into it; the texts of all findings. Partner libraries are
// in those folders.
std::string TextsOfFindings(const std::string& lines, const std::vector<std::string>& partners = {});

// Expects the texts of each example, and none.
void ExpectFindings(std::initializer_list<JudgedLines> examples);
void ExpectNoFindings(std::initializer_list<const char*> examples);
