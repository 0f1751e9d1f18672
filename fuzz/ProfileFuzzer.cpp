// Reads any bytes as a profile file: its values and sections, the configuration and the texts of a language.
#include "environment/ClytEnvironment.h"
#include "environment/ClytINISection.h"
#include "environment/ProfileFile.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/Samples.h"
#include "fuzz/frame/Stage.h"
#include "sysinfo/files/IniSection.h"
#include "sysinfo/fonts/Fonts.h"

#include <windows.h>

namespace
{
namespace profile_fuzzer
{

constexpr const char* file = "memory:\\profile.ini";
constexpr int leastBytes = 3; // the library asks for no less
constexpr int mostBytes = 5'000;

void ReadValues(const std::string& section, const std::string& key, int size)
{
    const Room room(size);
    GetPrivateProfileStringA(section.c_str(), key.c_str(), "default ", room.Data(), static_cast<DWORD>(size), file);
    static_cast<void>(lytReadProfileText(section.c_str(), key.c_str(), "default", size, file));
    lytReadProfileSection(section.c_str(), room.Data(), size, file);
}

void ReadSection(const std::string& name)
{
    ClytINISection section(file, name.c_str());
    const bool isThere = section.Read();
    static_cast<void>(IniSectionLines(section));
    CStringList lines;
    AddFontLines(
        file, isThere ? &section : nullptr,
        [](const CString& font) {
            return std::vector<FontEntry>{{font, 0}, {font + " Bold", 255}};
        },
        lines);
}

void ReadTexts(const std::string& section, const std::string& key, const std::string& argument)
{
    static_cast<void>(lytEnvironment.GetLanguageFileName());
    static_cast<void>(lytEnvironment.GetText(section.c_str(), key.c_str(), argument.c_str()));
    static_cast<void>(lytEnvironment.GetIniValue(section.c_str(), key.c_str()));
    static_cast<void>(lytEnvironment.GetLogLevel());
}

void Run(const std::string& input)
{
    const Stage stage;
    InputText lines(input);
    const std::string section = lines.Line();
    const std::string key = lines.Line();
    const std::string argument = lines.Line();
    const int size = lines.Number(leastBytes, mostBytes);
    stage.PutFile("profile.ini", lines.Rest());
    stage.PutFile("lang/Test.nls", lines.Rest());
    Attempt([&] { ReadValues(section, key, size); });
    Attempt([&] { ReadSection(section); });
    Attempt([&] { ReadTexts(section, key, argument); });
    stage.PutFile("lyt.ini", lines.Rest());
    Attempt([&] { ReadTexts(section, key, argument); });
}

std::vector<std::string> Seeds()
{
    return {
        "FONTS\nBody\n\n100\n" + SourceFile("samples/init/lyt.ini"),
        "Dialog_Error\n212\nname\n75\n" + SourceFile("samples/dialogs/lang/English.nls"),
        "a\nb\n'\n5\n;c\n[A]\r\n b = \"value\" \rb\n=x\n[a]]\n[\n" + std::string("\0n=1\x1A", 5),
    };
}

} // namespace profile_fuzzer
} // namespace

const Fuzzer profileFuzzer = {"profile", "section; key; argument; size; the file", profile_fuzzer::Run,
                              profile_fuzzer::Seeds};
