// The data-source library: how it is found, what it may lack, how often it is read.
#include "TreeFixture.h"

#include <stdexcept>

class TreeSource : public TreeTest
{
protected:
    // One catalogue is empty and was asked for nothing, the other is whole.
    void ExpectRefusedAlone(char refused)
    {
        EXPECT_EQ(ItemsShown("P").size(), refused == 'P' ? 0U : 3U);
        EXPECT_EQ(ItemsShown("S"), refused == 'S' ? Lines() : houseShown);
        EXPECT_EQ(SymbolFor("tin"), refused == 'S' ? "0 untouched" : "1 tin");
        EXPECT_EQ(Starts(refused) + Nexts(refused), 0);
    }
};

namespace
{

void BreakOff()
{
    throw std::runtime_error("The source broke off.");
}

void ReleaseEverything()
{
    const HMODULE library = GetModuleHandleA("lyt64");
    reinterpret_cast<decltype(&FreeGlobalObject)>(
        reinterpret_cast<void*>(GetProcAddress(library, "FreeGlobalObject")))();
}

} // namespace

TEST_F(TreeSource, MissingLibraryIsAnEmptyCatalogueWithoutAMessage)
{
    const Answer answer = Open("S",
                               [](const TreeWindow& tree)
                               {
                                   EXPECT_EQ(tree.Items(), Lines());
                                   tree.Cancel();
                               });
    EXPECT_EQ(answer.result, 0);
    EXPECT_EQ(answer.messages, Lines());
    EXPECT_EQ(SymbolFor("tin"), "0 untouched");
}

TEST_F(TreeSource, MissingLibraryIsSoughtAgainAtTheNextUse)
{
    EXPECT_EQ(SymbolFor("tin"), "0 untouched");
    EXPECT_EQ(ItemsShown("S"), Lines());
    UseSource();
    EXPECT_EQ(SymbolFor("tin"), "1 tin");
    EXPECT_EQ(ItemsShown("S"), houseShown);
}

TEST_F(TreeSource, ParaPairIsRefusedAloneWithoutItsNextFunction)
{
    UseSource("without-para-next");
    ExpectRefusedAlone('P');
}

TEST_F(TreeSource, ParaPairIsRefusedAloneWithoutItsStartFunction)
{
    UseSource("without-para-start");
    ExpectRefusedAlone('P');
}

TEST_F(TreeSource, SymbolPairIsRefusedAloneWithoutItsNextFunction)
{
    UseSource("without-next");
    ExpectRefusedAlone('S');
}

TEST_F(TreeSource, SymbolPairIsRefusedAloneWithoutItsStartFunction)
{
    UseSource("without-start");
    ExpectRefusedAlone('S');
}

TEST_F(TreeSource, RefusedStartIsAnEmptyCatalogue)
{
    UseSource();
    Serve('S', house, 0);
    EXPECT_EQ(ItemsShown("S"), Lines());
    EXPECT_EQ(SymbolFor("tin"), "0 untouched");
    EXPECT_EQ(Starts('S'), 2);
    EXPECT_EQ(Nexts('S'), 0);
}

TEST_F(TreeSource, AnyOtherAnswerThanZeroStarts)
{
    UseSource();
    Serve('S', house, -1);
    EXPECT_EQ(ItemsShown("S"), houseShown);
}

TEST_F(TreeSource, EmptyRunIsAnEmptyCatalogueThatIsReadAgain)
{
    UseSource();
    Serve('S', {});
    EXPECT_EQ(ItemsShown("S"), Lines());
    Serve('S', house);
    EXPECT_EQ(ItemsShown("S"), houseShown);
}

TEST_F(TreeSource, IsReadOnceForEachCatalogueUntilItIsReleased)
{
    UseSource();
    ItemsShown("S");
    ItemsShown("G");
    ItemsShown("W");
    SymbolFor("tin");
    EXPECT_EQ(Starts('S'), 1);
    EXPECT_EQ(Nexts('S'), 9);
    EXPECT_EQ(Starts('P'), 0);
    ItemsShown("P");
    ItemsShown("P");
    EXPECT_EQ(Starts('P'), 1);

    Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    Serve('S', {Entry(0, LYT_TREE_SYMBOL, "New", "new")});
    EXPECT_EQ(ItemsShown("S"), Lines({"New [2]"}));
    EXPECT_EQ(Starts('S'), 1);
}

TEST_F(TreeSource, IsReadForEachLookupWhenNoDialogHasReadIt)
{
    UseSource();
    EXPECT_EQ(SymbolFor("tin"), "1 tin");
    EXPECT_EQ(SymbolFor("nothing"), "0 untouched");
    EXPECT_EQ(Starts('S'), 2);
    ItemsShown("S");
    EXPECT_EQ(Starts('S'), 3);
}

TEST_F(TreeSource, RunThatBreaksOffIsToldAndNotKept)
{
    UseSource();
    Interrupt(3, BreakOff);
    robot::Robot robot;
    robot.AnswerMessage().On("Catalogue",
                             [](HWND window)
                             {
                                 const TreeWindow tree(window);
                                 EXPECT_EQ(tree.Items(), Lines());
                                 tree.Cancel();
                             });
    GuardedBuffer buffer(255, "untouched");
    EXPECT_EQ(Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("S", buffer.Data(), buffer.Size()), 0);
    EXPECT_TRUE(robot.Done()) << robot.Log();
    EXPECT_EQ(robot.Messages(),
              Lines({"The library 'lytsrc' failed in its function 'lytTreeNext': The source broke off."}));

    Interrupt(0, nullptr);
    EXPECT_EQ(ItemsShown("S"), houseShown);
    EXPECT_EQ(Starts('S'), 2);
}

TEST_F(TreeSource, RunThatBreaksOffInALookupIsNotKept)
{
    UseSource();
    Interrupt(3, BreakOff);
    EXPECT_THROW(SymbolFor("tin"), std::runtime_error);
    Interrupt(0, nullptr);
    EXPECT_EQ(SymbolFor("tin"), "1 tin");
    EXPECT_EQ(ItemsShown("S"), houseShown);
    EXPECT_EQ(Starts('S'), 3);
}

TEST_F(TreeSource, MayReleaseEverythingFromInsideACall)
{
    UseSource();
    Interrupt(4, ReleaseEverything);
    EXPECT_EQ(ItemsShown("S"), houseShown);
    Interrupt(0, nullptr);
    EXPECT_EQ(ItemsShown("S"), houseShown);
    EXPECT_EQ(Starts('S'), 1);
}
