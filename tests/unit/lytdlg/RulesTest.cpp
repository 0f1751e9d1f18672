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
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
            EXPECT_TRUE(ids.insert(rule->id).second) << rule->id;
    }
}

namespace
{

// What no other rule names has no example, and libraries and language files are files of their own.
const std::set<std::string> filesOfTheirOwn = {"refused",   "partner-library", "partner-form", "text-byte-order-mark",
                                               "text-form", "message-differs"};

} // namespace

TEST(Rules, FindTheirWrongExampleAndNothingElseInIt)
{
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
        {
            const std::string id = rule->id;
            if (filesOfTheirOwn.contains(id))
                continue;
            SCOPED_TRACE(rule->id);
            const Found found = FindIn(rule->wrong);
            EXPECT_EQ(found.rules, std::set<std::string>{rule->id}) << found.text;
        }
    }
}

TEST(Rules, FindNothingInTheirRightExample)
{
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
        {
            SCOPED_TRACE(rule->id);
            EXPECT_EQ(FindIn(rule->right).text, "");
        }
    }
}
