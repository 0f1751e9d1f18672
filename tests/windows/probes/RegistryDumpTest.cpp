#include "ProbeFixture.h"

namespace
{

using namespace std::string_literals;

class RegistryDump : public ProbeFixture
{
protected:
    RegistryDump() { registry.AddKey(HKEY_CURRENT_USER, root); }

    Texts Lines() const
    {
        TakeLines();
        lytDumpRegistry(root.c_str(), HKEY_CURRENT_USER);
        return TakeLines();
    }
    void Set(const std::string& name, DWORD type, const std::string& data)
    {
        registry.Set(HKEY_CURRENT_USER, root, name, type, data);
    }
    void SetBelow(const std::string& subkey, const std::string& name, const std::string& text)
    {
        registry.SetText(HKEY_CURRENT_USER, root + "\\" + subkey, name, text);
    }
    static std::string Head(const std::string& name)
    {
        return "  " + name + std::string(name.size() < 45 ? 45 - name.size() : 0, ' ') + " : ";
    }

    const std::string root = "Software\\lyt64-tests\\Dump";
};

} // namespace

TEST_F(RegistryDump, ShowsEachTypeInItsOwnWords)
{
    Set("a", REG_SZ, "text\0"s);
    Set("b", REG_EXPAND_SZ, "%PATH%\0"s);
    Set("c", REG_BINARY, "\x01\xFF"s);
    Set("d", REG_DWORD, "\x2A\x00\x00\x00"s);
    Set("e", REG_NONE, "data");
    Set("f", REG_DWORD_BIG_ENDIAN, "\x00\x00\x00\x01"s);
    Set("g", REG_LINK, "l\0i\0\0\0"s);
    Set("h", REG_MULTI_SZ, "a\0b\0\0"s);
    Set("i", REG_RESOURCE_LIST, "data");
    Set("j", 9, "data");
    Set("k", REG_QWORD, "\x01\x00\x00\x00\x00\x00\x00\x00"s);
    EXPECT_EQ(Lines(), (Texts{Head(root + "/a") + "text", Head(root + "/b") + "%PATH%", Head(root + "/c") + "01 FF ",
                              Head(root + "/d") + "42", Head(root + "/e") + "unsupported type",
                              Head(root + "/f") + "unsupported type", Head(root + "/g") + "unsupported type",
                              Head(root + "/h") + "unsupported type", Head(root + "/i") + "unsupported type",
                              Head(root + "/j"), Head(root + "/k")}));
}

TEST_F(RegistryDump, BelievesOnlyTheReportedSize)
{
    Set("a", REG_SZ, "no end");
    Set("b", REG_SZ, "");
    Set("c", REG_DWORD, "\x07"s);
    Set("d", REG_DWORD, "");
    Set("e", REG_BINARY, "");
    EXPECT_EQ(Lines(), (Texts{Head(root + "/a") + "no end", Head(root + "/b"), Head(root + "/c") + "7",
                              Head(root + "/d") + "0", Head(root + "/e")}));
}

TEST_F(RegistryDump, EndsTheValuesOfAKeyAtDataAboveTheBuffer)
{
    Set("a", REG_BINARY, std::string(400, '\x11'));
    Set("b", REG_BINARY, std::string(401, '\x22'));
    Set("c", REG_SZ, "not shown\0"s);
    SetBelow("sub", "", "shown");
    std::string bytes;
    for (int i = 0; i < 400; ++i)
        bytes += "11 ";
    EXPECT_EQ(Lines(), (Texts{Head(root + "/a") + bytes, Head(root + "\\sub") + "shown"}));
}

TEST_F(RegistryDump, OfAKeyWhoseFirstDataIsAboveTheBufferIsItsName)
{
    Set("a", REG_SZ, std::string(500, 'x') + '\0');
    Set("b", REG_SZ, "not shown\0"s);
    SetBelow("sub", "", "shown");
    EXPECT_EQ(Lines(), (Texts{"  " + root, Head(root + "\\sub") + "shown"}));
}

TEST_F(RegistryDump, EndsTheValuesOfAKeyAtANameAboveTheBuffer)
{
    Set("a" + std::string(398, 'n'), REG_SZ, "1\0"s);
    Set("b" + std::string(399, 'n'), REG_SZ, "2\0"s);
    EXPECT_EQ(Lines(), (Texts{Head(root + "/a" + std::string(398, 'n')) + "1"}));
}

TEST_F(RegistryDump, ShowsAKeyAheadOfAllThatIsBelowIt)
{
    Set("v", REG_SZ, "0\0"s);
    SetBelow("a", "v", "1");
    SetBelow("a\\deep", "v", "2");
    SetBelow("b", "", "3");
    EXPECT_EQ(Lines(), (Texts{Head(root + "/v") + "0", Head(root + "\\a/v") + "1", Head(root + "\\a\\deep/v") + "2",
                              Head(root + "\\b") + "3"}));
}

TEST_F(RegistryDump, GoesDownAHundredLevels)
{
    std::string path;
    for (int i = 0; i < 100; ++i)
        path += (i == 0 ? "k" : "\\k");
    SetBelow(path, "", "bottom");
    const Texts lines = Lines();
    ASSERT_EQ(lines.size(), 101U);
    EXPECT_EQ(lines.back(), Head(root + "\\" + path) + "bottom");
}
