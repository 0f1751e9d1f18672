// Language files and lyt.ini that are no texts, and folders with long names.
#include "Attendant.h"
#include "Limit.h"
#include "Scene.h"

#include <filesystem>

namespace
{

constexpr size_t tenMillion = 10'000'000;

std::string TextOfKey(const Scene& scene, const char* section = "Buttons", const char* key = "001")
{
    GuardedBuffer buffer(200, "as it was");
    const int result =
        scene.Get<decltype(lytGetTextForKey)>("lytGetTextForKey")(section, key, "", buffer.Data(), buffer.Size());
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + buffer.Text();
}

std::string Setting(const Scene& scene, const char* path)
{
    GuardedBuffer buffer(2000, "as it was");
    const int result =
        scene.Get<decltype(lytGetTextFromIniFile)>("lytGetTextFromIniFile")(path, buffer.Data(), buffer.Size());
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + buffer.Text();
}

// Calls for texts and windows work on, with anything in the files.
void ExpectWorkingOn(Scene& scene)
{
    scene.EndDialog(IDOK);
    EXPECT_EQ(scene.ShowSymbol(), "2 key");
    scene.EndBrowser(IDCANCEL);
    EXPECT_EQ(scene.OpenBrowser(), "0 as it was");
}

std::string LongLines()
{
    std::string text;
    while (text.size() < tenMillion)
        text += "key" + std::to_string(text.size()) + "=" + std::string(1000, 'v') + "\r\n";
    return text;
}

void LongFiles(Scene& scene)
{
    const std::string more = LongLines();
    scene.folder.Write("lyt.ini", scene.folder.Read("lyt.ini") + "[more]\r\n" + more + "[last]\r\nkey=value\r\n");
    scene.folder.Write("lang/Test.nls",
                       scene.folder.Read("lang/Test.nls") + "[more]\r\n" + more + "[last]\r\nkey=text\r\n");
    EXPECT_EQ(Setting(scene, "last/key"), "1 value");
    EXPECT_EQ(TextOfKey(scene, "last", "key"), "1 text");
    ExpectWorkingOn(scene);
}

void LongValue(Scene& scene)
{
    scene.folder.Write("lyt.ini", scene.folder.Read("lyt.ini") + "[more]\r\nkey=" + std::string(tenMillion, 'v'));
    scene.folder.Write("lang/Test.nls",
                       scene.folder.Read("lang/Test.nls") + "[more]\r\nkey=" + std::string(tenMillion, 't'));
    EXPECT_EQ(Setting(scene, "more/key"), "1 " + std::string(1023, 'v'));
    EXPECT_EQ(TextOfKey(scene, "more", "key"), "1 " + std::string(74, 't'));
    ExpectWorkingOn(scene);
}

void NoLineEnds(Scene& scene)
{
    scene.folder.Write("lang/Test.nls", std::string(tenMillion, 'x'));
    EXPECT_EQ(TextOfKey(scene), "0 no value present");
    scene.folder.Write("lyt.ini", std::string(tenMillion, '['));
    EXPECT_EQ(Setting(scene, "global/Current Language"), "1 Entry not found");
}

void Nuls(Scene& scene)
{
    const std::string nuls(1000, '\0');
    scene.folder.Write("lang/Test.nls",
                       scene.folder.Read("lang/Test.nls") + "[more]\r\nkey=before" + nuls + "after\r\n");
    scene.folder.Write("lyt.ini", scene.folder.Read("lyt.ini") + "[more]\r\nkey=before" + nuls + "after\r\n");
    EXPECT_EQ(TextOfKey(scene, "more", "key"), "1 before");
    EXPECT_EQ(Setting(scene, "more/key"), "1 before");
    ExpectWorkingOn(scene);
}

std::string InUtf16(const std::string& text)
{
    std::string wide = "\xFF\xFE";
    for (const char ch : text)
        wide += std::string{ch, '\0'};
    return wide;
}

void Utf16(Scene& scene)
{
    scene.folder.Write("lyt.ini", InUtf16(scene.folder.Read("lyt.ini")));
    scene.folder.Write("lang/Test.nls", InUtf16(scene.folder.Read("lang/Test.nls")));
    EXPECT_EQ(Setting(scene, "lists/list"), "1 a,b");
    EXPECT_EQ(TextOfKey(scene), "1 OK");
    ExpectWorkingOn(scene);
}

void Folders(Scene& scene)
{
    scene.folder.Write("directory/lyt.ini/file", "");
    const std::string folder = scene.folder.File("directory");
    scene.Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("", folder.c_str(), folder.c_str());
    EXPECT_EQ(Setting(scene, "lists/list"), "1 Entry not found");
    EXPECT_EQ(TextOfKey(scene), "0 no value present");
}

// Opens the dialog from a folder whose whole name has a length.
std::string ShowFromFolder(Scene& scene, size_t length)
{
    std::string name = "a/";
    while (scene.folder.File(name).size() < length)
        name += scene.folder.File(name).size() + 60 < length ? std::string(50, 'f') + "/" : "f";
    for (const char* file : {"lytInSym.dlg", "lang/Test.nls"})
        scene.folder.Write(name + "/" + file, scene.folder.Read(file));
    const std::string folder = scene.folder.File(name);
    EXPECT_EQ(folder.size(), length);
    scene.Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("", folder.c_str(),
                                                                              scene.folder.Path().c_str());
    return scene.ShowSymbol();
}

void LongFolder(Scene& scene)
{
    scene.EndDialog(IDOK);
    EXPECT_EQ(ShowFromFolder(scene, 240), "2 key");
}

// Whether the description is opened depends on the platform; its texts never are.
void FolderThatIsTooLong(Scene& scene)
{
    const Attendant attendant;
    const std::string answer = ShowFromFolder(scene, 255);
    EXPECT_TRUE(answer == "2 key" || answer == "0 as it was") << answer;
    EXPECT_EQ(attendant.Seen(), "no value present;");
}

void PlantedLibrary(Scene& scene)
{
    const std::filesystem::path before = std::filesystem::current_path();
    const std::filesystem::path planted = scene.folder.Path() + "\\lyt.dll";
    std::filesystem::copy_file(ProgramFolder() + "\\hostile.dll", planted);
    std::filesystem::current_path(planted.parent_path());
    scene.EndDialog(IDOK);
    EXPECT_EQ(scene.ShowSymbol(), "2 key");
    std::filesystem::current_path(before);
    const HMODULE loaded = GetModuleHandleA("lyt.dll");
    ASSERT_NE(loaded, nullptr);
    // Its file goes with the scene.
    FreeLibrary(loaded);
}

constexpr Limit fileRows[] = {
    {"`lyt.ini`, language file", "10 MB of lines", "read as usual; the last section is found", LongFiles},
    {"`lyt.ini`, language file", "a value of 10 MB",
     "its first 1,023 (`lyt.ini`) or 74 characters (language file) are used", LongValue},
    {"`lyt.ini`, language file", "10 MB without a line end", "nothing is found in it", NoLineEnds},
    {"`lyt.ini`, language file", "NULs in a value", "the value ends before the first", Nuls},
    {"`lyt.ini`, language file", "UTF-16 with a byte order mark", "read as Windows reads such a file", Utf16},
    {"`lyt.ini`, language file", "a folder of that name", "nothing is found", Folders},
    {"folder of the dialogs", "a name of 240 characters", "used as usual", LongFolder},
    {"folder of the dialogs", "a name of 255 characters",
     "files that Windows cannot open count as missing: \"no value present\" in place of texts, or message 207 for the "
     "description",
     FolderThatIsTooLong},
    {"current folder", "contains a `lyt.dll`, and no folder searched earlier does",
     "it is loaded, and its code runs; [deployment.md](deployment.md#planted-libraries) says how to prevent that",
     PlantedLibrary},
};

} // namespace

const LimitTable fileLimits = {
    "Files and folders",
    "For mistakes in descriptions see [symptoms.md](symptoms.md).",
    "what",
    fileRows,
};
