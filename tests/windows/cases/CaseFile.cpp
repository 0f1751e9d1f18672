#include "CaseFile.h"

#include "CaseWords.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <tuple>

namespace
{

// The words of a text as one name.
std::string NameOf(const std::string& text)
{
    std::string name;
    bool isStart = true;
    for (const char c : text)
    {
        const bool isKept = std::isalnum(static_cast<unsigned char>(c)) != 0;
        if (isKept)
            name += static_cast<char>(isStart ? std::toupper(static_cast<unsigned char>(c)) : c);
        isStart = !isKept;
    }
    return name;
}

std::string WithColumns(std::string text, const std::vector<std::string>& columns)
{
    for (size_t column = 0; column < columns.size(); ++column)
        Exchange(text, "$" + std::to_string(column + 1), columns[column]);
    return text;
}

// The case once for each of the alternatives, or as it is.
void Add(const Case& made, const std::vector<std::string>& alternatives, std::vector<Case>& cases)
{
    if (alternatives.empty())
        cases.push_back(made);
    for (const std::string& alternative : alternatives)
    {
        Case one = made;
        one.name += "_" + std::to_string(&alternative - alternatives.data() + 1);
        for (CaseLine& line : one.lines)
            line.text = WithColumns(line.text, Split(alternative + (alternative.ends_with(" ~") ? " " : ""), " ~ "));
        cases.push_back(one);
    }
}

} // namespace

std::vector<Case> ReadCases(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("no file " + path);
    std::vector<Case> cases;
    Case made;
    CaseLines shared;
    std::vector<std::string> sharedAlternatives;
    std::vector<std::string> alternatives;
    int number = 0;
    for (std::string line; std::getline(file, line);)
    {
        ++number;
        if (line.starts_with("case: "))
        {
            if (made.name.empty())
                std::tie(shared, sharedAlternatives) = std::tie(made.lines, alternatives);
            else
                Add(made, alternatives.empty() ? sharedAlternatives : alternatives, cases);
            made = {NameOf(std::filesystem::path(path).stem().string()), NameOf(line.substr(6)), shared, false};
            alternatives.clear();
        }
        else if (line.starts_with("each: "))
            std::ranges::copy(Split(line.substr(6), " | "), std::back_inserter(alternatives));
        else if (line == "rounds")
            made.hasRounds = true;
        else if (!line.empty() && line[0] != '#')
            made.lines.push_back({number, line});
    }
    Add(made, alternatives.empty() ? sharedAlternatives : alternatives, cases);
    return cases;
}

std::vector<Case> CasesOf(const std::string& paths)
{
    std::vector<Case> all;
    for (const std::string& path : Split(paths, "|"))
        std::ranges::copy(ReadCases(path), std::back_inserter(all));
    return all;
}
