// The report may move the folder of lyt.ini: to where the registry says, and to where a template was found.
#include "ReportTest.h"

namespace
{

constexpr const char* iniPathKey = "LYTDOCUMENT\\shell\\open\\IniPath";

class IniPath : public ReportTest
{
};

class MachineWithoutAWordProcessor : public ReportTest
{
};

// Two word processors, each with its own template directories.
class TemplateSearch : public ReportTest
{
protected:
    TemplateSearch()
    {
        registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word\\12.0");
        registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word\\16.0");
        registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\12.0\\Common\\General", "UserTemplates",
                         folder.File("user12"));
        registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\12.0\\Common\\General", "SharedTemplates",
                         folder.File("group12"));
        registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\16.0\\Common\\General", "UserTemplates",
                         folder.File("user16"));
        registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\16.0\\Common\\General", "SharedTemplates",
                         folder.File("group16") + "\\");
    }
    void UseVersion(const char* number)
    {
        registry.SetText(HKEY_CLASSES_ROOT, "Word.Application\\CurVer", "", std::string("Word.Application.") + number);
    }
    void AddTemplate(const std::string& directory) { folder.Write(directory + "\\lyt.dot", "template"); }
};

} // namespace

TEST_F(IniPath, MovesTheFolderToWhereTheRegistrySays)
{
    const std::string moved = folder.File("moved") + "\\";
    folder.Write("moved\\lyt.ini", "[paths]\r\nGUI-HOME=from the moved file\r\n");
    registry.SetText(HKEY_CLASSES_ROOT, iniPathKey, "", moved);
    const Texts lines = Report();
    EXPECT_EQ(InitPath(), moved);
    EXPECT_TRUE(HasLine(lines, "GUI-HOME                       : from the moved file"));
    EXPECT_TRUE(HasLine(lines, "Fonts Information from " + moved + "lyt.ini"));
}

TEST_F(IniPath, AddsTheMissingSeparator)
{
    registry.SetText(HKEY_CLASSES_ROOT, iniPathKey, "", "C:\\conf");
    Report();
    EXPECT_EQ(InitPath(), "C:\\conf\\");
}

TEST_F(IniPath, ReadsPathsOfMoreThan80Bytes)
{
    const std::string path = "C:\\" + std::string(120, 'p') + "\\";
    registry.SetText(HKEY_CLASSES_ROOT, iniPathKey, "", path);
    Report();
    EXPECT_EQ(InitPath(), path);
}

TEST_F(IniPath, TakesDataWithoutANulAtItsEnd)
{
    registry.Set(HKEY_CLASSES_ROOT, iniPathKey, "", REG_SZ, "C:\\conf");
    Report();
    EXPECT_EQ(InitPath(), "C:\\conf\\");
}

TEST_F(IniPath, EmptyTextMovesToTheRoot)
{
    registry.SetText(HKEY_CLASSES_ROOT, iniPathKey, "", "");
    Report();
    EXPECT_EQ(InitPath(), "\\");
}

TEST_F(IniPath, KeepsTheFolderWithoutTheKey)
{
    Report();
    EXPECT_EQ(InitPath(), folder.Path());
}

TEST_F(IniPath, KeepsTheFolderWithoutADefaultValue)
{
    registry.SetText(HKEY_CLASSES_ROOT, iniPathKey, "other", "C:\\conf");
    Report();
    EXPECT_EQ(InitPath(), folder.Path());
}

TEST_F(MachineWithoutAWordProcessor, HasNoBlocks)
{
    const Texts lines = Report();
    EXPECT_EQ(LineOf(lines, "Word Versions"), "Word Versions                  : ");
    EXPECT_EQ(LineOf(lines, "Word Version Used"), "Word Version Used By LYT Server: ");
    EXPECT_FALSE(HasLine(lines, "Office Version"));
    EXPECT_EQ(CountLines(lines, "Word "), 2U);
    EXPECT_EQ(lines.back(), "Office enabled languages:");
}

TEST_F(TemplateSearch, EachVersionHasItsBlock)
{
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\16.0\\Word\\Options", "STARTUP-PATH",
                     "C:\\start");
    folder.Write("user16\\lytOne.dot", "1");
    folder.Write("user16\\other.dot", "2");
    folder.Write("group16\\LYTTWO", "3");
    const Texts block = LinesBetween(Report(), "Word 12.0 Macro", "LYT Directory Tree");
    ASSERT_EQ(block.size(), 6U);
    EXPECT_EQ(block[0], "Word 16.0 User Template Dir     : " + folder.File("user16"));
    EXPECT_TRUE(block[1].starts_with("  " + folder.File("user16\\lytOne.dot"))) << block[1];
    EXPECT_EQ(block[2], "Word 16.0 Workgroup Template Dir: " + folder.File("group16") + "\\");
    EXPECT_TRUE(block[3].starts_with("  " + folder.File("group16\\LYTTWO"))) << block[3];
    EXPECT_EQ(block[4], "Word 16.0 Autostart Dir         : C:\\start");
    EXPECT_TRUE(block[5].starts_with("Word 16.0 Macro Security        : ")) << block[5];
}

TEST_F(TemplateSearch, KeepsTheFolderWithoutTemplates)
{
    UseVersion("12");
    Report();
    EXPECT_EQ(InitPath(), folder.Path());
}

TEST_F(TemplateSearch, UserTemplateOfTheVersionInUseEndsTheSearch)
{
    UseVersion("12");
    AddTemplate("user12");
    AddTemplate("user16");
    Report();
    EXPECT_EQ(InitPath(), folder.File("user12") + "\\");
}

TEST_F(TemplateSearch, UserTemplateOfAnotherVersionIsOnlyHeldUntilTheNext)
{
    UseVersion("16");
    AddTemplate("user12");
    AddTemplate("user16");
    Report();
    EXPECT_EQ(InitPath(), folder.File("user16") + "\\");
}

TEST_F(TemplateSearch, LastUserTemplateStaysInForceWhenNoneIsOfTheVersionInUse)
{
    UseVersion("15");
    AddTemplate("user12");
    Report();
    EXPECT_EQ(InitPath(), folder.File("user12") + "\\");
}

TEST_F(TemplateSearch, WidthAfterTheVersionInUseKeepsItFromBeingMet)
{
    // The suffix " 64 bit" makes the text of the version in use unlike that of any version, so the search continues.
    registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word\\17.0");
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\17.0\\Common\\General", "UserTemplates",
                     folder.File("user17"));
    char program[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, program, sizeof program);
    registry.SetText(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Winword.exe", "",
                     program);
    UseVersion("16");
    AddTemplate("user16");
    AddTemplate("user17");
    const Texts lines = Report();
    EXPECT_EQ(LineOf(lines, "Word Version Used"), "Word Version Used By LYT Server: 16.0 64 bit");
    EXPECT_EQ(InitPath(), folder.File("user17") + "\\");
}

TEST_F(TemplateSearch, WorkgroupTemplateEndsTheSearchWithoutMovingTheFolder)
{
    UseVersion("12");
    AddTemplate("group12");
    AddTemplate("user16");
    Report();
    EXPECT_EQ(InitPath(), folder.Path());
}

TEST_F(TemplateSearch, WorkgroupTemplateOfAnotherVersionChangesNothing)
{
    UseVersion("16");
    AddTemplate("group12");
    AddTemplate("user16");
    Report();
    EXPECT_EQ(InitPath(), folder.File("user16") + "\\");
}

TEST_F(TemplateSearch, WorkgroupTemplateBesideAUserTemplateKeepsTheUsersFolder)
{
    UseVersion("16");
    AddTemplate("user16");
    AddTemplate("group16");
    Report();
    EXPECT_EQ(InitPath(), folder.File("user16") + "\\");
}

TEST_F(TemplateSearch, StepsAfterTheBlocksReadTheFileThatWasFound)
{
    UseVersion("16");
    WriteIni("[paths]\r\nGUI-HOME=first\r\n[Convert]\r\na=first\r\n");
    AddTemplate("user16");
    folder.Write("user16\\lyt.ini", "[paths]\r\nGUI-HOME=second\r\n[Convert]\r\na=second\r\n");
    const Texts lines = Report();
    EXPECT_TRUE(HasLine(lines, "GUI-HOME                       : first"));
    EXPECT_TRUE(HasLine(lines, "  a = second"));
    EXPECT_TRUE(HasLine(lines, "Fonts Information from " + folder.File("user16") + "\\lyt.ini"));
}

TEST_F(TemplateSearch, WordsOfAFailurePassAsADirectory)
{
    registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word\\5.0");
    const Texts block = LinesBetween(Report(), "Word 16.0 Macro", "LYT Directory Tree");
    const std::string unsupported = "Cannot open registry key unsupported version";
    EXPECT_EQ(block, (Texts{"Word 5.0 User Template Dir     : ", "Word 5.0 Workgroup Template Dir: " + unsupported,
                            "Word 5.0 Autostart Dir         : " + unsupported,
                            "Word 5.0 Macro Security        : " + unsupported}));
}
