// The dialog's part in the state that it shares with button and tree.
#include "ControlClass.h"

#include "environment/ProcessState.h"
#include "tree/ClytNode.h"

namespace
{

class DialogClass : public ControlClass
{
protected:
    ~DialogClass() override { lytDeleteNodes(); }

    static ClytNode& AddNode(int current, int initial)
    {
        ClytNode& node = lytSymbolNodes.AddTail(std::make_unique<ClytNode>(nullptr, 1));
        node.current = current;
        node.initial = initial;
        return node;
    }
};

} // namespace

TEST_F(DialogClass, EveryCommandIsNotedAlsoWhenNoRulesMayRun)
{
    const int readyBefore = std::exchange(lytControlsReady, 0);
    lytCommandSeen = 0;
    dialog.SendMessage(WM_COMMAND, MAKEWPARAM(0, EN_CHANGE), 1);
    EXPECT_EQ(lytCommandSeen, 1);
    lytControlsReady = readyBefore;
}

TEST_F(DialogClass, ConstructionStartsTheTreesCountAnew)
{
    lytTreeConfirmCount = 5;
    const ClytDialog other("", "");
    EXPECT_EQ(lytTreeConfirmCount, 0);
}

TEST_F(DialogClass, OkStartsTheTreesCountAnew)
{
    for (const int count : {5, -1})
    {
        lytTreeConfirmCount = count;
        dialog.SendMessage(WM_COMMAND, IDOK);
        EXPECT_EQ(lytTreeConfirmCount, 0);
    }
}

TEST_F(DialogClass, CancelGivesTheTreeItsPlaceBack)
{
    const ClytNode& confirmed = AddNode(1, 0);
    const ClytNode& first = AddNode(0, 1);
    lytTreeConfirmCount = 3;
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(lytTreeConfirmCount, 0);
    EXPECT_EQ(confirmed.current, 0);
    EXPECT_EQ(first.current, 1);
}

TEST_F(DialogClass, CancelAfterAConfirmationInTheWizardLeavesTheTree)
{
    const ClytNode& confirmed = AddNode(1, 0);
    const ClytNode& first = AddNode(0, 1);
    lytTreeConfirmCount = -1;
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(lytTreeConfirmCount, -1);
    EXPECT_EQ(confirmed.current, 1);
    EXPECT_EQ(first.current, 0);
}

TEST_F(DialogClass, IsBuiltWithoutTouchingItsDescription)
{
    const ClytDialog other("Z:\\no such folder\\no.dlg", "A,B");
    EXPECT_STREQ(other.GetResult(), "");
    EXPECT_STREQ(other.GetTextSection(), "");
    EXPECT_TRUE(other.GetControlList().IsEmpty());
    EXPECT_EQ(other.FindControl("x"), nullptr);
}
