// What the platform tells of the machine: directories, the registry, shell commands, fonts and programs.
#include "ProbeFixture.h"

#include "base/PartnerLibrary.h"
#include "environment/ClytEnvironment.h"
#include "support/FailingAllocation.h"
#include "sysinfo/frame/ProgramKind.h"

#include <algorithm>
#include <filesystem>
#include <regex>

namespace fs = std::filesystem;

namespace
{

using namespace std::string_literals;
using Machine = ProbeFixture;

class RegistryDump : public ProbeFixture
{
protected:
    RegistryDump() { registry.AddKey(HKEY_CURRENT_USER, root); }

    Texts Lines() const
    {
        return LinesOf([this] { lytDumpRegistry(root.c_str(), HKEY_CURRENT_USER); });
    }
    void Set(const std::string& name, DWORD type, const std::string& data)
    {
        registry.Set(HKEY_CURRENT_USER, root, name, type, data);
    }
    void SetBelow(const std::string& subkey, const std::string& name, const std::string& text)
    {
        registry.SetText(HKEY_CURRENT_USER, root + "\\" + subkey, name, text);
    }
    std::string Head(const std::string& below) const
    {
        const std::string name = root + below;
        return "  " + name + std::string(name.size() < 45 ? 45 - name.size() : 0, ' ') + " : ";
    }

    const std::string root = "Software\\lyt64-tests\\Dump";
};

// The root of the classes as this test lays it, for this process alone.
class ShellCommand : public ProbeFixture
{
protected:
    ShellCommand()
    {
        registry.AddKey(HKEY_CURRENT_USER, root);
        HKEY classes = nullptr;
        EXPECT_EQ(RegOpenKeyA(HKEY_CURRENT_USER, root, &classes), ERROR_SUCCESS);
        EXPECT_EQ(RegOverridePredefKey(HKEY_CLASSES_ROOT, classes), ERROR_SUCCESS);
        RegCloseKey(classes);
    }
    ~ShellCommand() override { RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr); }

    void AddClass(const std::string& key) { registry.AddKey(HKEY_CURRENT_USER, std::string(root) + "\\" + key); }
    void SetClass(const std::string& key, const std::string& text)
    {
        registry.SetText(HKEY_CURRENT_USER, std::string(root) + "\\" + key, "", text);
    }
    static Texts Lines(const char* verb)
    {
        return LinesOf([&] { lytShowShellCommand(verb); });
    }

    static constexpr const char* root = "Software\\lyt64-tests\\Classes";
};

} // namespace

TEST_F(Machine, TellsWhyADirectoryCannotBeUsedAndListsOneThatCan)
{
    const auto check = [](const std::string& directory)
    { return LinesOf([&] { lytCheckDirectory(directory.c_str()); }); };
    // Of the second name the platform would take the beginning, which is there.
    for (const std::string& missing : {folder.Path() + "\\none", folder.Path() + std::string(32'768, 'x')})
        EXPECT_EQ(check(missing), (Texts{"Directory '" + missing + "' does not exist!"}));
    const std::string shut = folder.Write("shut", "");
    SetFileAttributesA(shut.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(check(shut), (Texts{"Directory '" + shut + "' does not have read / write access!"}));
    SetFileAttributesA(shut.c_str(), FILE_ATTRIBUTE_NORMAL);
    folder.Write("sub/a.txt", "1");
    const Texts lines = check(folder.Path() + "\\sub");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("\\a.txt"), std::string::npos);
}

TEST_F(Machine, HasTheRegisteredInstallationWithItsSeparatorUpTo260Bytes)
{
    const std::string current = fs::current_path().string() + "\\";
    EXPECT_EQ(lytInstallDirectory(), current.c_str());
    registry.AddKey(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir");
    EXPECT_EQ(lytInstallDirectory(), current.c_str());
    const std::string longest(259, 'x');
    for (const auto& [registered, told] : {std::pair("C:\\lyt"s, "C:\\lyt\\"s), std::pair("C:\\lyt\\"s, "C:\\lyt\\"s),
                                           std::pair(longest, longest + "\\"), std::pair(longest + "x", current)})
    {
        Install(registered);
        EXPECT_EQ(lytInstallDirectory(), told.c_str());
    }
}

TEST_F(Machine, TakesNoNameBeyondThePlatformsLengthForItsBeginning)
{
    const auto lengthened = [](const std::string& name) { return name + std::string(65'536, 'x'); };
    ASSERT_TRUE(BinaryKindOf(OwnFile().c_str()));
    EXPECT_FALSE(BinaryKindOf(lengthened(OwnFile()).c_str()));
    ASSERT_NE(lytLoadLibrary("kernel32.dll"), nullptr);
    EXPECT_EQ(lytLoadLibrary(lengthened("kernel32.dll").c_str()), nullptr);
}

TEST_F(Machine, RaisesMemoryThatRunsOutWhileThePlatformTellsItsFonts)
{
    folder.Write("lyt.ini", "[FONTS]\nSans=Tahoma\n");
    int completed = 0;
    const auto probe = [&]
    {
        lytEnvironment.lytReportLines.RemoveAll();
        lytProbeFonts();
        ++completed;
    };
    EXPECT_GT(FailEachAllocation(probe), 100);
    EXPECT_EQ(completed, 1) << "a failure was swallowed";
    const Texts lines = TakeLines();
    ASSERT_GT(lines.size(), 1U);
    EXPECT_EQ(lines[1], "  Sans=Tahoma");
}

TEST_F(Machine, HasAKernelWithARecordOfItsVersionAndIsNoProgramForInformation)
{
    const std::string text = lytProbeKernelVersion().GetString();
    EXPECT_TRUE(std::regex_match(
        text, std::regex(R"([^;]+; -?\d+,\d+,\d+,\d+; .:\\windows\\.*kernel32\.dll; \d\d\.\d\d\.\d{4} \d\d:\d\d)",
                         std::regex::icase)))
        << text;
    EXPECT_EQ(lytProgramKind(), "");
}

TEST_F(Machine, AsksAResourceLibraryByItsOwnFunctionFirstAndFreesIt)
{
    const std::string blanks(399, ' ');
    const std::string own = OwnFile();
    const std::string folders = own.substr(0, own.rfind('\\')) + "\\resource-libraries\\";
    for (const auto& [variant, version] :
         {std::pair("both", "4.5.6 (own)"s), std::pair("own", "4.5.6 (own)"s), std::pair("plain", "1.2.3 (plain)"s),
          std::pair("none", blanks), std::pair("missing", blanks), std::pair("measuring", "399 characters"s),
          std::pair("full", std::string(399, 'x')), std::pair("raising", blanks)})
    {
        SetDllDirectoryA((folders + variant).c_str());
        EXPECT_EQ(lytProbeResolveVersion(), version.c_str()) << variant;
        EXPECT_EQ(GetModuleHandleA("LytRes64.dll"), nullptr) << variant;
    }
    SetDllDirectoryA(nullptr);
}

TEST_F(RegistryDump, ShowsAKeyAheadOfAllThatIsBelowIt)
{
    Set("v", REG_SZ, "no end");
    Set("w", REG_DWORD, "\x07"s);
    SetBelow("a", "v", "1");
    SetBelow("a\\deep", "v", "2");
    SetBelow("b", "", "3");
    EXPECT_EQ(Lines(), (Texts{Head("/v") + "no end", Head("/w") + "7", Head("\\a/v") + "1", Head("\\a\\deep/v") + "2",
                              Head("\\b") + "3"}));
    std::string path = "c";
    for (int depth = 1; depth < 100; ++depth)
        path += "\\k";
    SetBelow(path, "", "bottom");
    EXPECT_EQ(Lines().back(), Head("\\" + path) + "bottom");
}

TEST_F(RegistryDump, EndsTheValuesOfAKeyAtDataOrANameAboveTheBuffer)
{
    SetBelow("sub", "", "shown");
    Set("a", REG_SZ, std::string(500, 'x') + '\0');
    Set("b", REG_SZ, "not shown\0"s);
    EXPECT_EQ(Lines(), (Texts{"  " + root, Head("\\sub") + "shown"}));
    const std::string name = "a" + std::string(398, 'n');
    Set("a", REG_BINARY, std::string(400, '\x11'));
    Set(name, REG_SZ, "1\0"s);
    Set("b" + std::string(399, 'n'), REG_SZ, "2\0"s);
    std::string bytes;
    for (int i = 0; i < 400; ++i)
        bytes += "11 ";
    const Texts lines = Lines();
    EXPECT_EQ(lines.front(), Head("/a") + bytes);
    EXPECT_NE(std::ranges::find(lines, Head("/" + name) + "1"), lines.end());
    EXPECT_EQ(std::ranges::find(lines, Head("/b" + std::string(399, 'n')) + "2"), lines.end());
    Set("a", REG_BINARY, std::string(401, '\x22'));
    EXPECT_EQ(Lines().front(), "  " + root);
}

TEST_F(ShellCommand, IsReadFromTheTypeOfTheExtension)
{
    EXPECT_EQ(Lines("print"), (Texts{"Extension .pdf is not registered"}));
    AddClass(".pdf");
    EXPECT_EQ(Lines("print"), Texts());
    SetClass(".pdf", std::string(512, 'x'));
    EXPECT_EQ(Lines("print"), Texts());
    SetClass(".pdf", "Reader");
    AddClass("Reader\\shell\\print\\command");
    EXPECT_EQ(Lines("print"), Texts()) << "a command without a value";
    EXPECT_EQ(Lines("printto"), (Texts{"Shell command <printto> not available for extension <.pdf>"}));
    const std::string command(5000, 'c');
    SetClass("Reader\\shell\\print\\command", command);
    EXPECT_EQ(Lines("print"), (Texts{"Shell command <print> for <.pdf> files executes: <" + command + ">"}));
}
