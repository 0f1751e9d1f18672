// What may be picked, what is handed out for it, and what is refused.
#include "TreeFixture.h"

class TreeChoice : public TreeTest
{
protected:
    TreeChoice() { UseSource(); }

    // Opens the browser and cancels it when the pick was refused.
    std::string PickOrCancel(const std::string& request, const std::string& label)
    {
        const Answer answer = Open(request, {[&](const TreeWindow& tree) { tree.Pick(label); },
                                             [](const TreeWindow& tree) { tree.Cancel(); }});
        return std::to_string(answer.result) + " " + (answer.messages.empty() ? "" : answer.messages.front());
    }
};

namespace
{

const std::string refused = "0 Pick another.";

}

TEST_F(TreeChoice, HandsOutTheKeyOfASymbol)
{
    const Answer answer = Pick("S", "Tile   red");
    EXPECT_EQ(answer.result, 1);
    EXPECT_EQ(answer.text, "tile");
    EXPECT_EQ(answer.messages, Lines());
}

TEST_F(TreeChoice, HandsOutTheKeyOfAGroup)
{
    EXPECT_EQ(Pick("G", "Roof").text, "roof");
    EXPECT_EQ(Pick("P", "Gravel").text, "gravel");
}

TEST_F(TreeChoice, CancelLeavesTheTargetAsItWas)
{
    const Answer answer = Open("S", [](const TreeWindow& tree) { tree.Cancel(); });
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.text, "untouched");
}

TEST_F(TreeChoice, EscapeCancelsAndReturnConfirms)
{
    EXPECT_EQ(Open("S", [](const TreeWindow&) { robot::PressKey(VK_ESCAPE); }).result, 0);
    EXPECT_EQ(Open("Stin", [](const TreeWindow&) { robot::PressKey(VK_RETURN); }).text, "tin");
}

TEST_F(TreeChoice, RefusesTheWrongTypeAndStaysOpen)
{
    EXPECT_EQ(PickOrCancel("S", "House"), refused);
    EXPECT_EQ(PickOrCancel("S", "Roof"), refused);
    EXPECT_EQ(PickOrCancel("G", "House"), refused);
    EXPECT_EQ(
        Open("S", {[](const TreeWindow& tree) { tree.Pick("Roof"); }, [](const TreeWindow& tree) { tree.Pick("Tin"); }})
            .text,
        "tin");
}

TEST_F(TreeChoice, RefusesToConfirmWithoutASelection)
{
    const Answer answer = Open("S", {[](const TreeWindow& tree)
                                     {
                                         tree.SelectNothing();
                                         tree.Confirm();
                                     },
                                     [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.messages, Lines({"Pick another."}));
}

TEST_F(TreeChoice, RefusesToConfirmAnEmptyCatalogue)
{
    Serve('S', {});
    const Answer answer =
        Open("W", {[](const TreeWindow& tree) { tree.Confirm(); }, [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.messages, Lines({"Pick another."}));
}

TEST_F(TreeChoice, EmptyRequestRefusesEveryChoice)
{
    EXPECT_EQ(PickOrCancel("", "House"), refused);
    EXPECT_EQ(PickOrCancel("", "Roof"), refused);
    EXPECT_EQ(PickOrCancel("", "Tin"), refused);
}

TEST_F(TreeChoice, OtherLettersWantEntriesOfThatType)
{
    EXPECT_EQ(PickOrCancel("X", "Tin"), refused);
    EXPECT_EQ(PickOrCancel("s", "Tin"), refused);
    EXPECT_EQ(Pick("H", "Garden").text, "garden");
    EXPECT_EQ(ItemsShown("Xtin"), houseShown);
}

TEST_F(TreeChoice, DoubleClickOnALeafConfirms)
{
    const Answer answer = Open("Stin", [](const TreeWindow& tree) { tree.DoubleClick("Tin"); });
    EXPECT_EQ(answer.result, 1);
    EXPECT_EQ(answer.text, "tin");
}

TEST_F(TreeChoice, DoubleClickOnALeafOfTheWrongTypeIsRefused)
{
    Serve('S', {Entry(0, LYT_TREE_HEADING, "bare", "b")});
    const Answer answer = Open(
        "S", {[](const TreeWindow& tree) { tree.DoubleClick("bare"); }, [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.messages, Lines({"Pick another."}));
}

TEST_F(TreeChoice, DoubleClickOnAnEntryWithChildrenOnlyOpensIt)
{
    robot::Robot robot;
    bool open = false;
    const auto tree = [] { return TreeWindow(robot::ActiveDialog()); };
    robot.On("Catalogue", [&](HWND) { tree().DoubleClick("Roof"); })
        .When(
            "open", [&] { return (tree().StateOf("Roof") & TVIS_EXPANDED) != 0; },
            [&]
            {
                open = true;
                tree().Cancel();
            });
    GuardedBuffer buffer(255, "untouched");
    EXPECT_EQ(Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("W", buffer.Data(), buffer.Size()), 0);
    EXPECT_TRUE(robot.Done()) << robot.Log();
    EXPECT_TRUE(open);
    EXPECT_EQ(buffer.Text(), "untouched");
}

TEST_F(TreeChoice, DoubleClickOnAGroupWhoseSymbolsAreNotShownConfirmsIt)
{
    EXPECT_EQ(Open("G", [](const TreeWindow& tree) { tree.DoubleClick("Roof"); }).text, "roof");
}

TEST_F(TreeChoice, DoubleClickWithoutASelectionGoesTheWayOfOk)
{
    const Answer answer =
        Open("S", {[](const TreeWindow& tree)
                   {
                       tree.SelectNothing();
                       NMHDR header = {tree.Tree(), 1000, static_cast<UINT>(NM_DBLCLK)};
                       PostMessageA(tree.Dialog(), WM_NULL, 0, 0);
                       SendMessageA(tree.Dialog(), WM_NOTIFY, 1000, reinterpret_cast<LPARAM>(&header));
                   },
                   [](const TreeWindow& tree) { tree.Cancel(); }});
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.messages, Lines({"Pick another."}));
}

TEST_F(TreeChoice, LetsEveryBranchOpen)
{
    Open("S",
         [](const TreeWindow& tree)
         {
             NMTREEVIEWA expanding = {};
             expanding.hdr = {tree.Tree(), 1000, static_cast<UINT>(TVN_ITEMEXPANDINGA)};
             EXPECT_EQ(SendMessageA(tree.Dialog(), WM_NOTIFY, 1000, reinterpret_cast<LPARAM>(&expanding)), 0);
             tree.Cancel();
         });
}

// ---- the caller's buffer

using TreeTarget = TreeChoice;

TEST_F(TreeTarget, TakesATextThatFitsAndIsLeftEmptyByALongerOne)
{
    static const struct
    {
        int size;
        const char* text;
        char beyond; // the byte one beyond the stated size
    } cases[] = {{6, "brick", GuardedBuffer::guard}, {5, "", GuardedBuffer::guard}, {4, "", '\0'}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.size);
        robot::Robot robot;
        robot.On("Catalogue", [&](HWND dialog) { TreeWindow(dialog).Pick("Brick"); });
        GuardedBuffer buffer(c.size, "old");
        EXPECT_EQ(Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("S", buffer.Data(), buffer.Size()), 1);
        EXPECT_TRUE(robot.Done()) << robot.Log();
        EXPECT_EQ(buffer.Text(), c.text);
        EXPECT_EQ(buffer.ByteBeyond(), c.beyond);
        EXPECT_TRUE(buffer.IsIntact(1));
    }
}
