#include "CaseList.h"

#include "commandline/Text.h"

#include <algorithm>
#include <cstdlib>

std::vector<Case> ReadCases(const std::string& text, const std::vector<std::string>& groups)
{
    std::vector<Case> cases;
    for (const std::string& line : commandline::LinesOf(text))
    {
        if (line.starts_with("== "))
        {
            const size_t colon = line.find(": ");
            cases.push_back({line.substr(3, colon - 3), line.substr(colon + 2), {}, {}});
        }
        else if (line.starts_with("$ "))
            cases.back().command = line.substr(2);
        else if (line.starts_with("  "))
            cases.back().expected.push_back(line.substr(2));
        else if (line.starts_with("["))
            cases.back().code = std::atoi(line.c_str() + 1);
        else if (line == "@ keep")
            cases.back().isKept = true;
        else if (line == "@ tests")
            cases.back().hasTests = true;
    }
    if (!groups.empty())
        std::erase_if(cases, [&](const Case& each) { return std::ranges::find(groups, each.group) == groups.end(); });
    return cases;
}
