// Entries without a window: a symbol found by its key, and the walk over the symbols below a group.
#include "TreeFixture.h"

class TreeEntries : public TreeTest
{
protected:
    TreeEntries() { UseSource(); }
};

class SymbolFromTree : public TreeEntries
{
};

class ChildNodes : public TreeEntries
{
protected:
    ChildNodes() { ItemsShown("S"); }

    int Start(const char* key) { return Get<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode")(key); }
    void Release() { Get<decltype(FreeGlobalObject)>("FreeGlobalObject")(); }
};

TEST_F(SymbolFromTree, GivesTheKeyThatTheTextBegins)
{
    EXPECT_EQ(SymbolFor("ti"), "1 tile");
    EXPECT_EQ(SymbolFor("tin"), "1 tin");
    EXPECT_EQ(SymbolFor("tins"), "0 untouched");
    EXPECT_EQ(SymbolFor("roof"), "0 untouched");
    ItemsShown("S");
    EXPECT_EQ(SymbolFor("ti"), "1 tile");
    EXPECT_EQ(SymbolFor("roof"), "0 untouched");
    EXPECT_EQ(Starts('S'), 5);
}

TEST_F(SymbolFromTree, GivesZeroForTheEmptyText)
{
    EXPECT_EQ(SymbolFor(""), "0 untouched");
    GuardedBuffer buffer(10, "old");
    EXPECT_EQ(Get<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree")(nullptr, buffer.Data(), buffer.Size()), 0);
    EXPECT_EQ(buffer.Text(), "old");
    EXPECT_EQ(Starts('S'), 0);
}

TEST_F(SymbolFromTree, LeavesTheNextDialogToReadItsOwn)
{
    SymbolFor("tin");
    EXPECT_EQ(ItemsShown("S"), houseShown);
    EXPECT_EQ(Starts('S'), 2);
}

TEST_F(SymbolFromTree, LeavesAShortBufferEmpty)
{
    auto* get = Get<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree");
    GuardedBuffer fits(6);
    EXPECT_EQ(get("brick", fits.Data(), fits.Size()), 1);
    EXPECT_EQ(fits.Text(), "brick");
    GuardedBuffer tooShort(4, "old");
    EXPECT_EQ(get("brick", tooShort.Data(), tooShort.Size()), 1);
    EXPECT_EQ(tooShort.Text(), "");
    EXPECT_TRUE(tooShort.IsIntact());
    EXPECT_EQ(get("brick", nullptr, 10), 0);
    EXPECT_EQ(get("brick", tooShort.Data(), 0), 0);
}

TEST_F(ChildNodes, AreTheSymbolsThatFollowAGroup)
{
    EXPECT_EQ(Start("roof"), 1);
    EXPECT_EQ(ReadChildren(), Lines({"Tile   red|tile\\Tile##red", "Tin|tin\\Tin"}));
}

TEST_F(ChildNodes, NeedADialogToHaveReadThem)
{
    Release();
    EXPECT_EQ(Start("roof"), 0);
    EXPECT_EQ(Start(nullptr), 0);
    EXPECT_EQ(Starts('S'), 1);
}

TEST_F(ChildNodes, AreGoneAfterRelease)
{
    EXPECT_EQ(Start("roof"), 1);
    Release();
    EXPECT_EQ(ReadChildren(), Lines());
    ItemsShown("S");
    EXPECT_EQ(ReadChildren(), Lines());
}

TEST_F(ChildNodes, KeepTheirDepthOverRelease)
{
    EXPECT_EQ(Start("roof"), 1);
    EXPECT_EQ(ReadChildren().size(), 2U);
    Release();
    ItemsShown("S");
    EXPECT_EQ(Start("garden"), 1);
    EXPECT_EQ(ReadChildren(), Lines());
}

TEST_F(ChildNodes, SurviveALookup)
{
    EXPECT_EQ(Start("roof"), 1);
    EXPECT_EQ(SymbolFor("brick"), "1 brick");
    EXPECT_EQ(ReadChildren().size(), 2U);
}

TEST_F(ChildNodes, LeaveShortBuffersEmptyAndMoveOn)
{
    auto* read = Get<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode");
    EXPECT_EQ(Start("roof"), 1);
    GuardedBuffer text(4, "old");
    GuardedBuffer path(14, "old");
    EXPECT_EQ(read(text.Data(), text.Size(), path.Data(), path.Size()), 1);
    EXPECT_EQ(text.Text(), "");
    EXPECT_EQ(path.Text(), "");
    EXPECT_TRUE(text.IsIntact() && path.IsIntact());
    EXPECT_EQ(read(text.Data(), text.Size(), path.Data(), path.Size()), 1);
    EXPECT_EQ(text.Text(), "Tin");
    EXPECT_EQ(path.Text(), "tin\\Tin");
}

TEST_F(ChildNodes, KeepTheirPlaceWhenThereIsNoRoomAtAll)
{
    auto* read = Get<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode");
    EXPECT_EQ(Start("roof"), 1);
    GuardedBuffer text(10, "old");
    EXPECT_EQ(read(text.Data(), text.Size(), nullptr, 10), 0);
    EXPECT_EQ(read(nullptr, 10, text.Data(), text.Size()), 0);
    EXPECT_EQ(read(text.Data(), 0, text.Data(), text.Size()), 0);
    EXPECT_EQ(text.Text(), "old");
    EXPECT_EQ(ReadChildren().size(), 2U);
}

TEST_F(ChildNodes, OfLongestTextsAreWhole)
{
    Release();
    const std::string label(99, '#');
    const std::string key(99, 'k');
    Serve('S', {Entry(0, LYT_TREE_GROUP, "g", "g"), Entry(1, LYT_TREE_SYMBOL, label, key)});
    ItemsShown("");
    EXPECT_EQ(Start("g"), 1);
    EXPECT_EQ(ReadChildren(), Lines({std::string(147, ' ') + "#|" + key + "\\" + label}));
}
