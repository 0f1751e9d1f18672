#include "tree/ClytWizardQueue.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// All deliveries of a result: the first text, then each later one, "-" where nothing is handed out.
std::string Deliveries(const char* result)
{
    ClytWizardQueue queue;
    std::string texts = queue.Begin(result).GetString();
    while (queue.IsPending())
        texts += std::string(" ") + queue.Deliver().value_or("-").GetString();
    return texts;
}

} // namespace

TEST(WizardQueue, IsNotPendingAtFirst)
{
    EXPECT_FALSE(ClytWizardQueue().IsPending());
}

TEST(WizardQueue, DeliversTheHeadAndThenEachItem)
{
    static const struct
    {
        const char* result;
        const char* texts;
    } cases[] = {
        {"head/LIST{a|b|c", "head/LIST{ a| b| c"},
        {"head/LIST{a", "head/LIST{ a"},
        {"head/LIST{a|", "head/LIST{ -"},
        {"head/LIST{a|b|", "head/LIST{ a| -"},
        {"head/LIST{", "head/LIST{ "},
        {"head/LIST{|", "head/LIST{ -"},
        {"head/LIST{|b", "head/LIST{ | b"},
        {"h{x/LIST more{a|b", "h{x/LIST more{ a| b"},
        {"/LIST{a{b|c", "/LIST{ a{b| c"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.result);
        EXPECT_EQ(Deliveries(c.result), c.texts);
    }
}

TEST(WizardQueue, SearchesTheWholeResultWithoutAListMark)
{
    EXPECT_EQ(Deliveries("head{a|b"), "head{ a| b");
    EXPECT_EQ(Deliveries("a|b"), " a| b");
    EXPECT_EQ(Deliveries(""), " ");
}

TEST(WizardQueue, TakesTheWholeRestForTheListWithoutABrace)
{
    EXPECT_EQ(Deliveries("h{ead/LISTa|b"), "h{ead/LIST a| b");
    EXPECT_EQ(Deliveries("head/LIST"), "head/LIST ");
}
