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

TEST_F(IniPath, IsTheTextOfTheRegistryWithASeparatorAtItsEnd)
{
    using namespace std::string_literals;
    const std::string longPath = "C:\\" + std::string(120, 'p') + "\\";
    const std::pair<std::string, std::string> cases[] = {
        {"C:\\conf\0"s, "C:\\conf\\"},
        {"C:\\conf", "C:\\conf\\"},
        {longPath + "\0"s, longPath},
        {"\0"s, "\\"},
    };
    for (const auto& [data, path] : cases)
    {
        registry.Set(HKEY_CLASSES_ROOT, iniPathKey, "", REG_SZ, data);
        Report();
        EXPECT_EQ(InitPath(), path);
    }
}

TEST_F(IniPath, KeepsTheFolderWithoutADefaultValue)
{
    Report();
    EXPECT_EQ(InitPath(), folder.Path());
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

TEST_F(TemplateSearch, MovesTheFolderToTheUsersTemplateThatEndsIt)
{
    static const struct
    {
        const char* versionInUse;
        std::vector<std::string> templates;
        const char* moved; // empty where the folder stays
    } cases[] = {
        {"12", {}, ""},
        {"12", {"user12", "user16"}, "user12"},
        // A template of another version counts until the next one.
        {"16", {"user12", "user16"}, "user16"},
        {"15", {"user12"}, "user12"},
        // A workgroup template of the version in use ends the search where the user has none.
        {"12", {"group12", "user16"}, ""},
        {"16", {"group12", "user16"}, "user16"},
        {"16", {"user16", "group16"}, "user16"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(testing::Message() << c.versionInUse << " " << testing::PrintToString(c.templates));
        initialise("doc.rtf", "", folder.Path().c_str());
        UseVersion(c.versionInUse);
        for (const std::string& directory : c.templates)
            AddTemplate(directory);
        Report();
        EXPECT_EQ(InitPath(), *c.moved == '\0' ? folder.Path() : folder.File(c.moved) + "\\");
        for (const std::string& directory : c.templates)
            EXPECT_TRUE(DeleteFileA(folder.File(directory + "\\lyt.dot").c_str()));
    }
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
