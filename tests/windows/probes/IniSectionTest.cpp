#include "ProbeFixture.h"

namespace
{

class IniSection : public ProbeFixture
{
protected:
    static Texts Lines()
    {
        TakeLines();
        lytShowIniSection("Convert");
        return TakeLines();
    }
};

} // namespace

TEST_F(IniSection, IsReadFromTheConfigurationFile)
{
    folder.Write("lyt.ini", "[Convert]\r\nfrom=rtf\r\nformat=pdf\r\n");
    EXPECT_EQ(Lines(), (Texts{"Section [Convert] in lyt.ini:", "  from   = rtf", "  format = pdf"}));
}

TEST_F(IniSection, OfAMissingFileIsEmpty)
{
    EXPECT_EQ(Lines(), (Texts{"Section [Convert] in lyt.ini:", "Section is EMPTY or not found!"}));
}

TEST_F(IniSection, IsCutAtTwoKilobytes)
{
    std::string lines = "[Convert]\r\n";
    for (int i = 0; i < 500; ++i)
        lines += "key" + std::to_string(1000 + i) + "=v\r\n";
    folder.Write("lyt.ini", lines);
    const Texts shown = Lines();
    ASSERT_EQ(shown.size(), 206U);
    EXPECT_EQ(shown[204], "  key1203 = v");
    EXPECT_EQ(shown[205], "  key120   ");
}
