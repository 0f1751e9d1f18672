#include "ProbeFixture.h"

namespace
{

// The root of the classes as this test lays it, for this process alone.
class ShellCommand : public ProbeFixture
{
protected:
    ShellCommand()
    {
        registry.AddKey(HKEY_CURRENT_USER, "Software\\lyt64-tests\\Classes");
        HKEY classes = nullptr;
        EXPECT_EQ(RegOpenKeyA(HKEY_CURRENT_USER, "Software\\lyt64-tests\\Classes", &classes), ERROR_SUCCESS);
        EXPECT_EQ(RegOverridePredefKey(HKEY_CLASSES_ROOT, classes), ERROR_SUCCESS);
        RegCloseKey(classes);
    }
    ~ShellCommand() override { RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr); }

    void SetClass(const std::string& key, const std::string& text)
    {
        registry.SetText(HKEY_CURRENT_USER, "Software\\lyt64-tests\\Classes\\" + key, "", text);
    }
    void AddClass(const std::string& key)
    {
        registry.AddKey(HKEY_CURRENT_USER, "Software\\lyt64-tests\\Classes\\" + key);
    }
    static Texts Lines(const char* verb)
    {
        TakeLines();
        lytShowShellCommand(verb);
        return TakeLines();
    }
};

} // namespace

TEST_F(ShellCommand, OfAnExtensionThatIsNotRegisteredSaysSo)
{
    EXPECT_EQ(Lines("print"), (Texts{"Extension .pdf is not registered"}));
}

TEST_F(ShellCommand, OfAnExtensionWithoutATypeIsLeftOut)
{
    AddClass(".pdf");
    EXPECT_EQ(Lines("print"), Texts());
    SetClass(".pdf", std::string(512, 'x'));
    EXPECT_EQ(Lines("print"), Texts());
}

TEST_F(ShellCommand, OfATypeWithoutTheVerbIsNotAvailable)
{
    SetClass(".pdf", "Reader.Document");
    SetClass("Reader.Document\\shell\\open\\command", "reader");
    EXPECT_EQ(Lines("printto"), (Texts{"Shell command <printto> not available for extension <.pdf>"}));
}

TEST_F(ShellCommand, IsShownWithItsVerb)
{
    SetClass(".pdf", "Reader.Document");
    SetClass("Reader.Document\\shell\\print\\command", "\"C:\\reader.exe\" /p \"%1\"");
    EXPECT_EQ(Lines("print"),
              (Texts{"Shell command <print> for <.pdf> files executes: <\"C:\\reader.exe\" /p \"%1\">"}));
}

TEST_F(ShellCommand, OfAnyLengthIsShownWhole)
{
    SetClass(".pdf", "Reader.Document");
    const std::string command(5000, 'c');
    SetClass("Reader.Document\\shell\\print\\command", command);
    EXPECT_EQ(Lines("print"), (Texts{"Shell command <print> for <.pdf> files executes: <" + command + ">"}));
}

TEST_F(ShellCommand, WithoutAValueIsLeftOut)
{
    SetClass(".pdf", "Reader.Document");
    AddClass("Reader.Document\\shell\\print\\command");
    EXPECT_EQ(Lines("print"), Texts());
}
