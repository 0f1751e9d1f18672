// A rule on its page:
//
//     ## NAME
//
//     An error. SUMMARY
//
//     REASON
//
//     Wrong:
//
//         LINES
//
//     Right:
//
//         LINES
//
// The reason goes to the examples or to the next rule; a rule without an example has neither.
#include "lytdlg/judge/Rule.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/judge/RulePage.h"

#include <algorithm>
#include <sstream>

namespace lytdlg
{

namespace
{

constexpr struct
{
    Level level;
    const char* word;
    std::string_view onPage;
} levels[] = {{Level::Error, "error", "An error. "},
              {Level::Warning, "warning", "A warning. "},
              {Level::Note, "note", "A note. "}};

constexpr size_t indent = 4;

void AddLine(std::string& text, const std::string& line)
{
    text += (text.empty() ? "" : "\n") + line;
}

void TakeSummary(const std::string& line, Rule& rule)
{
    for (const auto& each : levels)
    {
        if (!line.starts_with(each.onPage))
            continue;
        rule.level = each.level;
        rule.summary = line.substr(each.onPage.size());
    }
}

std::vector<Rule> ReadPage()
{
    std::vector<Rule> rules;
    std::string* example = nullptr; // of the last rule
    std::istringstream page(RulePage());
    for (std::string line; std::getline(page, line);)
    {
        if (line.starts_with("## "))
        {
            rules.emplace_back().id = line.substr(3);
            example = nullptr;
        }
        else if (rules.empty() || line.empty())
            continue;
        else if (line == "Wrong:" || line == "Right:")
            example = line == "Wrong:" ? &rules.back().wrong : &rules.back().right;
        else if (example != nullptr)
            AddLine(*example, commandline::ToAnsi(line.substr(indent)));
        else if (rules.back().summary.empty())
            TakeSummary(line, rules.back());
        else
            AddLine(rules.back().reason, line);
    }
    return rules;
}

// The lines are in the library's code page.
std::string Example(const char* title, const std::string& lines)
{
    std::string text;
    std::istringstream rest(commandline::ToUtf8(lines));
    for (std::string line; std::getline(rest, line);)
        text += std::string(indent, ' ') + line + "\n";
    return text.empty() ? text : std::string("\n") + title + ":\n\n" + text;
}

} // namespace

const char* WordOf(Level level)
{
    return std::ranges::find(levels, level, [](const auto& each) { return each.level; })->word;
}

const std::vector<Rule>& Rules()
{
    static const std::vector<Rule> rules = ReadPage();
    return rules;
}

const Rule* FindRule(const std::string& id)
{
    const auto rule = std::ranges::find(Rules(), id, &Rule::id);
    return rule != Rules().end() ? &*rule : nullptr;
}

std::string RuleList()
{
    constexpr size_t levelColumn = 28;
    constexpr size_t summaryColumn = levelColumn + 9;
    std::string text;
    for (const Rule& rule : Rules())
    {
        std::string line = rule.id;
        line.append(line.size() < levelColumn ? levelColumn - line.size() : 1, ' ');
        line += WordOf(rule.level);
        line.append(line.size() < summaryColumn ? summaryColumn - line.size() : 1, ' ');
        text += line + rule.summary + "\n";
    }
    return text;
}

std::string Explanation(const Rule& rule)
{
    return rule.id + " (" + WordOf(rule.level) + ")\n" + rule.summary + "\n\n" + rule.reason + "\n" +
           Example("Wrong", rule.wrong) + Example("Right", rule.right);
}

std::string RulePage()
{
    return {std::begin(rulePage), std::end(rulePage)};
}

std::string HintForRule(const std::string& id)
{
    const std::string nearest = commandline::Nearest(id, {ruleNames.begin(), ruleNames.end()});
    return nearest.empty() ? "`lytdlg check --rules` lists them" : "did you mean \"" + nearest + "\"?";
}

} // namespace lytdlg
