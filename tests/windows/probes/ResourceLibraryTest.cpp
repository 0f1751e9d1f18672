#include "ProbeFixture.h"

namespace
{

class ResourceLibrary : public ProbeFixture
{
protected:
    ~ResourceLibrary() override { SetDllDirectoryA(nullptr); }

    // Lets the library of that variant be found.
    static void Provide(const std::string& variant)
    {
        const std::string own = OwnFile();
        SetDllDirectoryA((own.substr(0, own.rfind('\\')) + "\\resource-libraries\\" + variant).c_str());
    }
};

const std::string blanks(399, ' ');

} // namespace

TEST_F(ResourceLibrary, IsAskedByItsOwnFunctionFirst)
{
    Provide("both");
    EXPECT_EQ(lytProbeResolveVersion(), "4.5.6 (own)");
    Provide("own");
    EXPECT_EQ(lytProbeResolveVersion(), "4.5.6 (own)");
}

TEST_F(ResourceLibrary, IsAskedByThePlainFunctionOtherwise)
{
    Provide("plain");
    EXPECT_EQ(lytProbeResolveVersion(), "1.2.3 (plain)");
}

TEST_F(ResourceLibrary, WithoutEitherFunctionGivesBlanks)
{
    Provide("none");
    EXPECT_EQ(lytProbeResolveVersion(), blanks.c_str());
}

TEST_F(ResourceLibrary, ThatIsMissingGivesBlanks)
{
    EXPECT_EQ(lytProbeResolveVersion(), blanks.c_str());
}

TEST_F(ResourceLibrary, IsGivenATextOf399Blanks)
{
    Provide("measuring");
    EXPECT_EQ(lytProbeResolveVersion(), "399 characters");
}

TEST_F(ResourceLibrary, IsCutAt399CharactersWhenItLeavesNoEnd)
{
    Provide("full");
    EXPECT_EQ(lytProbeResolveVersion(), std::string(399, 'x').c_str());
}

TEST_F(ResourceLibrary, ThatRaisesGivesBlanksAndIsFreed)
{
    Provide("raising");
    EXPECT_EQ(lytProbeResolveVersion(), blanks.c_str());
    EXPECT_EQ(GetModuleHandleA("LytRes64.dll"), nullptr);
}

TEST_F(ResourceLibrary, IsFreedAgain)
{
    Provide("both");
    lytProbeResolveVersion();
    EXPECT_EQ(GetModuleHandleA("LytRes64.dll"), nullptr);
}
