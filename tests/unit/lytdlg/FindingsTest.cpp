// Every rule finds what is wrong in its wrong example, in these words, and nothing else, and has nothing to say about the
// right one; and more examples of both kinds.
#include "ExampleFindings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace lytdlg
{

namespace
{

// A case of findings.cases: example lines, or the name of a rule for its wrong example, then the findings in it, if
// any. An empty line ends a case, and \xHH is a byte.
struct JudgedCase
{
    std::string example;
    std::string findings;
    int line = 0;
    const Rule* rule = nullptr;
};

std::string Unescaped(std::string text)
{
    for (size_t place = text.find("\\x"); place != std::string::npos; place = text.find("\\x", place + 1))
        text.replace(place, 4, 1, static_cast<char>(std::stoi(text.substr(place + 2, 2), nullptr, 16)));
    return text;
}

std::vector<JudgedCase> ReadJudgedCases()
{
    std::ifstream file(LYT_SOURCE_FOLDER "/tests/unit/lytdlg/findings.cases");
    std::vector<JudgedCase> cases(1);
    int number = 0;
    for (std::string line; std::getline(file, line);)
    {
        ++number;
        if (line.empty())
            cases.emplace_back().line = number + 1;
        else if (!cases.back().findings.empty() || line.starts_with("=> "))
            cases.back().findings += line + "\n";
        else
            cases.back().example += (cases.back().example.empty() ? "" : "\n") + Unescaped(line);
    }
    for (JudgedCase& each : cases)
    {
        each.rule = FindRule(each.example);
        if (each.rule != nullptr)
            each.example = each.rule->wrong;
    }
    return cases;
}

const std::vector<JudgedCase>& JudgedCases()
{
    static const std::vector<JudgedCase> cases = ReadJudgedCases();
    return cases;
}

} // namespace

TEST(Findings, AreTheseInTheseWords)
{
    for (const JudgedCase& each : JudgedCases())
    {
        SCOPED_TRACE(each.line);
        const Found found = FindIn(each.example);
        EXPECT_EQ(found.text, each.findings);
        EXPECT_TRUE(each.rule == nullptr || found.rules == std::set<std::string>{each.rule->id});
    }
}

TEST(Findings, OfEveryRuleAreShownByItsWrongExample)
{
    for (const Rule& rule : Rules())
    {
        const auto isOfRule = [&](const JudgedCase& each) { return each.rule == &rule; };
        EXPECT_TRUE(rule.wrong.empty() || std::ranges::any_of(JudgedCases(), isOfRule)) << rule.id;
    }
}

TEST(Findings, AreNotInRightExamples)
{
    EXPECT_EQ(FindIn("").text, "");
    for (const Rule& rule : Rules())
        EXPECT_EQ(FindIn(rule.right).text, "") << rule.id;
}

// A line is cut after 399 characters, and a piece may begin with a mark.
TEST(Findings, AreOfThePiecesThatTheLibraryReads)
{
    const std::string wholePiece = "$VALUES\nUnit = m" + std::string(391, ' ');
    EXPECT_EQ(FindIn(wholePiece).text, "");
    const Found found = FindIn(wholePiece + "<NOPE\nNothing\n>");
    EXPECT_EQ(found.rules, (std::set<std::string>{"define-off", "line-length"})) << found.text;
}

TEST(Findings, AreInLinesThatADefineWithANulSwitchesOn)
{
    const Description description("", ExampleDescription("$VALUES\n<A{NUL}B\nNobody = m\n>"), {"A"});
    const Findings findings = Judge(description, SurroundingsOf("", {}));
    ASSERT_EQ(findings.All().size(), 1U);
    EXPECT_EQ(findings.All().front().rule->id, "value-control-unknown");
}

TEST(Rules, HaveDifferentNames)
{
    EXPECT_EQ(std::set<std::string_view>(ruleNames.begin(), ruleNames.end()).size(), ruleNames.size());
}

TEST(Rules, ArePrintedAsTheirPageHasThem)
{
    std::string page;
    for (const Rule& rule : Rules())
    {
        const std::string level = rule.level == Level::Error     ? "An error"
                                  : rule.level == Level::Warning ? "A warning"
                                                                 : "A note";
        const std::string explanation = Explanation(rule);
        page += "\n## " + rule.id + "\n\n" + level + ". " + explanation.substr(explanation.find('\n') + 1);
    }
    EXPECT_TRUE(RulePage().ends_with(page));
}

} // namespace lytdlg
