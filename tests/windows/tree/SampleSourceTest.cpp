// The data source of the samples, as the browser shows it. Natively the test source has functions of the same names.
#include "TreeFixture.h"

#include <algorithm>

class SampleSource : public TreeTest
{
protected:
    // It is beside the DLL.
    SampleSource() { SetDllDirectoryA((ProgramFolder() + "\\..").c_str()); }

    static size_t DepthOf(const std::string& line) { return line.find_first_not_of(' ') / 2; }
};

TEST_F(SampleSource, ServesSymbolsFiveLevelsDeep)
{
    const Lines lines = ItemsShown("S");
    EXPECT_GT(lines.size(), 300U);
    EXPECT_EQ(DepthOf(std::ranges::max(lines, {}, DepthOf)), 4U);
    EXPECT_EQ(lines.front(), "Site [0]");
}

TEST_F(SampleSource, ServesBothCataloguesInOneProcess)
{
    EXPECT_EQ(SymbolFor("roof.pitched.cover.tile.a"), "1 roof.pitched.cover.tile.area");
    EXPECT_EQ(ItemsShown("P").front(), "General [0]");
    EXPECT_EQ(Pick("S", "Pitch   degrees").text, "roof.pitched.cover.tile.pitch");
    EXPECT_EQ(Pick("P", "Dry rot").text, "defect.timber.rot");
}

TEST_F(SampleSource, HasSymbolsBelowItsGroups)
{
    ItemsShown("S");
    EXPECT_EQ(Get<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode")("roof.pitched.frame.rafter"), 1);
    EXPECT_EQ(ReadChildren().size(), 3U);
}
