// Runs a case and compares its outcome to what is expected.
#pragma once

#include "lytdlg/try/CaseFile.h"

#include <map>
#include <string>
#include <vector>

namespace lytdlg
{

struct Difference
{
    int line = 0;              // of the case file
    std::string expected = {}; // empty where nothing was
    std::string got = {};
    bool isStop = false; // the case could not continue, for the reason that was got
};

// What would make the case agree with what was seen.
struct CaseUpdate
{
    std::map<int, std::string> replaced;                // the new text of a line; empty for one that goes
    std::map<int, std::vector<std::string>> insertions; // after a line
};

struct CaseResult
{
    std::vector<Difference> differences;
    CaseUpdate update;
};

CaseResult RunCase(const GoldenCase& one);

// The names of the descriptions that are on top when the lines of the case come, as far as it can be carried out.
std::map<int, std::string> DescriptionsOnTop(const GoldenCase& one);

// The lines of a file with updates; a comment at the end of a line stays.
std::vector<std::string> Updated(const std::vector<std::string>& lines, const CaseUpdate& update);

} // namespace lytdlg
