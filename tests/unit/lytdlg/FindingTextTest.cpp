// What the rules on sections, lines, statements, controls, values and dependencies say, word by word.
#include "ExampleFindings.h"

#include <gtest/gtest.h>

#include <fstream>

namespace
{

using namespace lytdlg;

// One case of findings.cases: example lines, a line of hyphens, the findings, a line of equals signs. A tab and other bytes
// are written as \t and \xHH.
struct TextCase
{
    std::string example;
    std::string findings;
    int line = 0;
};

std::string Unescaped(std::string text)
{
    for (size_t place = text.find("\\x"); place != std::string::npos; place = text.find("\\x", place + 1))
        text.replace(place, 4, 1, static_cast<char>(std::stoi(text.substr(place + 2, 2), nullptr, 16)));
    return text;
}

std::vector<TextCase> TextCases()
{
    std::ifstream file(LYT_SOURCE_FOLDER "/tests/unit/lytdlg/findings.cases");
    std::vector<TextCase> cases(1);
    bool isExample = true;
    int number = 0;
    for (std::string line; std::getline(file, line);)
    {
        ++number;
        if (line == "----")
            isExample = false;
        else if (line != "====")
            (isExample ? cases.back().example : cases.back().findings) += line + "\n";
        else
        {
            cases.emplace_back().line = number + 1;
            isExample = true;
        }
    }
    cases.pop_back();
    return cases;
}

// The rules up to $DEPENDANCES, and the library's own verdict; the others have tests of their family.
bool IsTested(const Rule& rule)
{
    return &rule < FindRule("evaluation-control") || rule.id == "refused";
}

} // namespace

TEST(FindingText, SaysWhatIsWrongInTheseWords)
{
    for (const TextCase& each : TextCases())
    {
        SCOPED_TRACE(each.line);
        EXPECT_EQ(FindIn(Unescaped(each.example), IsTested).text, each.findings);
    }
}

// A line is cut after 399 characters, and a piece may begin with a mark.
TEST(FindingText, IsOfThePiecesThatTheLibraryReads)
{
    const std::string wholePiece = "$VALUES\nUnit = m" + std::string(391, ' ');
    EXPECT_EQ(FindIn(wholePiece).text, "");
    const Found found = FindIn(wholePiece + "<NOPE\nNothing\n>");
    EXPECT_EQ(found.rules, (std::set<std::string>{"define-off", "line-length"})) << found.text;
}

TEST(FindingText, IsToldOfLinesThatADefineWithANulSwitchesOn)
{
    const Description description("", ExampleDescription("$VALUES\n<A{NUL}B\nNobody = m\n>"), {"A"});
    const Findings findings = Judge(description, SurroundingsOf("", {}));
    ASSERT_EQ(findings.All().size(), 1U);
    EXPECT_EQ(findings.All().front().rule->id, std::string("value-control-unknown"));
}

// What they would say about the actions of buttons, and which controls the result takes.
TEST(FindingText, IsNotToldOfSectionsThatAreCutOff)
{
    const Found found = FindIn("$VALUES\n<LONG\n");
    EXPECT_EQ(found.rules, (std::set<std::string>{"define-off", "mark-unended", "section-missing"})) << found.text;
}

TEST(FindingText, IsToldHereForEachRule)
{
    std::string all;
    for (const TextCase& each : TextCases())
        all += each.findings;
    for (const Rule& rule : Rules())
        EXPECT_TRUE(!IsTested(rule) || all.find(" " + rule.id + ": ") != std::string::npos) << rule.id;
}
