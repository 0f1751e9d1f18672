// Every rule shows what is wrong and what would be right: the wrong lines have this finding and no other, the right ones
// have none.
#include "lytdlg/judge/Examples.h"
#include "lytdlg/judge/Report.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using namespace lytdlg;

const TestFolder& ExampleFolder()
{
    static const TestFolder folder;
    static const bool isFilled = []
    {
        for (const ExampleFile& file : ExampleFiles())
            folder.Write(file.name, file.content);
        return true;
    }();
    static_cast<void>(isFilled);
    return folder;
}

// The rules that find something in an example, and the findings as a user sees them.
struct Found
{
    std::set<std::string> rules;
    std::string text;
};

Found FindIn(const char* example)
{
    const std::string text = ExampleDescription(example);
    const Description description("example.dlg", text, {});
    Found found;
    const Findings findings = Judge(description, SurroundingsOf(ExampleFolder().Path(), {}));
    for (const Finding& finding : findings.All())
    {
        found.rules.insert(finding.rule->id);
        found.text += TextOf(finding, description, false);
    }
    return found;
}

} // namespace

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

TEST(Rules, FindTheirWrongExampleAndNothingElseInIt)
{
    for (const Family& family : Families())
    {
        for (const Rule* rule : family.rules)
        {
            // What no other rule names has no example.
            if (std::string(rule->id) == "refused")
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
