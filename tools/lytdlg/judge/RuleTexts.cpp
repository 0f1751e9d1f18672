#include "lytdlg/judge/RuleTexts.h"

#include "commandline/Text.h"

namespace lytdlg
{

namespace
{

template <class USE>
void ForEachRule(USE use)
{
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
            use(*rule);
    }
}

std::string Indented(const std::string& lines)
{
    std::string text = "    ";
    for (const char ch : lines)
    {
        text += ch;
        if (ch == '\n')
            text += "    ";
    }
    return text + "\n";
}

// The lines are in the library's code page.
std::string Example(const char* title, const std::string& lines)
{
    return lines.empty() ? "" : std::string("\n") + title + ":\n\n" + Indented(commandline::ToUtf8(lines));
}

} // namespace

std::string RuleList()
{
    constexpr size_t levelColumn = 28;
    constexpr size_t summaryColumn = levelColumn + 9;
    std::string text;
    ForEachRule(
        [&](const Rule& rule)
        {
            std::string line = rule.id;
            line.append(line.size() < levelColumn ? levelColumn - line.size() : 1, ' ');
            line += WordOf(rule.level);
            line.append(line.size() < summaryColumn ? summaryColumn - line.size() : 1, ' ');
            text += line + rule.summary + "\n";
        });
    return text;
}

std::string Explanation(const Rule& rule)
{
    return std::string(rule.id) + " (" + WordOf(rule.level) + ")\n" + rule.summary + "\n\n" + rule.reason + "\n" +
           Example("Wrong", rule.wrong) + Example("Right", rule.right);
}

std::string RulePage()
{
    std::string text =
        "# The rules of lytdlg check\n\n"
        "Every rule that `lytdlg check` judges a description by, with a wrong and a right example. The page is\n"
        "what `lytdlg check --rules --format markdown` prints; a test judges each example.\n\n"
        "An error is what the library refuses, a warning what it passes over or what loses data or looks\n"
        "wrong, and a note what does neither harm nor good.\n\n"
        "The lines of an example are put into a small description without findings: a leading `-` takes that\n"
        "line away from it, `{NUL}` is a NUL byte, `{1A}` a Ctrl-Z, `{LONG}` is 400 blanks, and `{ABOVE}` joins its\n"
        "line with the next one.\n";
    ForEachRule(
        [&](const Rule& rule)
        {
            text += std::string("\n## ") + rule.id + "\n\n" + (rule.level == Level::Error ? "An error. " : "") +
                    (rule.level == Level::Warning ? "A warning. " : "") +
                    (rule.level == Level::Note ? "A note. " : "") + rule.summary + "\n\n" + rule.reason + "\n" +
                    Example("Wrong", rule.wrong) + Example("Right", rule.right);
        });
    return text;
}

} // namespace lytdlg
