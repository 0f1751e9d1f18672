#include "environment/ClytEnvironment.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{

class LanguageHold : public testing::Test
{
protected:
    LanguageHold()
    {
        folder.Write("lang/One.nls", "[T]\nk=one\n");
        folder.Write("lang/Two.nls", "[T]\nk=two\n");
        Choose("One");
        environment.SetInitPath(folder.Path().c_str());
        environment.SetDialogPath(folder.Path().c_str());
    }
    void Choose(const std::string& language) const
    {
        folder.Write("lyt.ini", "[global]\nCurrent Language=" + language + "\n");
    }

    const TestFolder folder;
    ClytEnvironment environment;
};

} // namespace

TEST_F(LanguageHold, KeepsTheLanguageForItsOwnTimeOnly)
{
    {
        const ClytLanguageHold hold(environment);
        Choose("Two");
        EXPECT_STREQ(environment.GetText("T", "k"), "one");
    }
    EXPECT_STREQ(environment.GetText("T", "k"), "two");
}

TEST_F(LanguageHold, InnerOneGivesTheOuterLanguageBack)
{
    const ClytLanguageHold outer(environment);
    Choose("Two");
    {
        const ClytLanguageHold inner(environment);
        EXPECT_STREQ(environment.GetText("T", "k"), "two") << "the language is asked for anew";
    }
    EXPECT_STREQ(environment.GetText("T", "k"), "one");
}

TEST_F(LanguageHold, ReadsTheTextsThemselvesEachTime)
{
    const ClytLanguageHold hold(environment);
    EXPECT_STREQ(environment.GetText("T", "k"), "one");
    folder.Write("lang/One.nls", "[T]\nk=another text\n");
    EXPECT_STREQ(environment.GetText("T", "k"), "another text");
}
