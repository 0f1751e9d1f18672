// Every rule shows what is wrong and what would be right: the wrong lines have this finding and no other, the right ones
// have none.
#include "ExampleFindings.h"

#include <gtest/gtest.h>

using namespace lytdlg;

TEST(Rules, HaveNothingToSayAboutTheDescriptionOfTheExamples)
{
    EXPECT_EQ(FindIn("").text, "");
}

TEST(Rules, HaveEachAnIdOfTheirOwn)
{
    std::set<std::string> ids;
    for (const Rule& rule : Rules())
        EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
}

namespace
{

// What no other rule names has no example, and libraries and language files are files of their own.
const std::set<std::string> filesOfTheirOwn = {"refused",   "partner-library", "partner-form", "text-byte-order-mark",
                                               "text-form", "message-differs"};

} // namespace

TEST(Rules, FindTheirWrongExampleAndNothingElseInIt)
{
    for (const Rule& rule : Rules())
    {
        if (filesOfTheirOwn.contains(rule.id))
            continue;
        SCOPED_TRACE(rule.id);
        const Found found = FindIn(rule.wrong);
        EXPECT_EQ(found.rules, std::set<std::string>{rule.id}) << found.text;
    }
}

TEST(Rules, FindNothingInTheirRightExample)
{
    for (const Rule& rule : Rules())
    {
        SCOPED_TRACE(rule.id);
        EXPECT_EQ(FindIn(rule.right).text, "");
    }
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
