// The built DLL as a file: what it imports, how it may be loaded, what it says of itself.
#include "BuiltFile.h"
#include "CallerInC.h"
#include "support/Image.h"
#include "support/Library.h"
#include "support/Modules.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <vector>
#include <windows.h>

namespace
{

class LibraryFile : public testing::Test
{
protected:
    HMODULE library = GetModuleHandleA("lyt64.dll");
    const Image image{library};
};

// Where the call goes whose first byte is at a place of the code.
size_t CallTarget(std::string_view code, size_t place)
{
    int distance = 0;
    constexpr size_t length = 1 + sizeof distance;
    if (place + length > code.size())
        return std::string_view::npos;
    std::memcpy(&distance, code.data() + place + 1, sizeof distance);
    return place + length + static_cast<size_t>(distance);
}

} // namespace

TEST_F(LibraryFile, ImportsSystemLibrariesOnly)
{
    const std::set<std::string> system = {"advapi32.dll", "comctl32.dll", "gdi32.dll",   "kernel32.dll", "msvcrt.dll",
                                          "user32.dll",   "uxtheme.dll",  "version.dll", "winspool.drv"};
    for (const auto* import = image.Imports(); import->Name != 0; ++import)
        EXPECT_TRUE(system.contains(InLowerCase(image.At<char>(import->Name)))) << image.At<char>(import->Name);
}

TEST_F(LibraryFile, MayBeLoadedAnywhereAndRunsNoData)
{
    const WORD flags = image.Headers().OptionalHeader.DllCharacteristics;
    EXPECT_TRUE(flags & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
    EXPECT_TRUE(flags & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
    EXPECT_TRUE(flags & 0x0020) << "high-entropy addresses";
}

TEST_F(LibraryFile, HasNoSectionThatIsBothWrittenAndRun)
{
    constexpr DWORD both = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
    ASSERT_FALSE(image.Sections().empty());
    for (const IMAGE_SECTION_HEADER& section : image.Sections())
        EXPECT_NE(section.Characteristics & both, both) << section.VirtualAddress;
}

// The compiler guards each function that holds an array. That it does so is an error of the build otherwise; here is
// seen that the guards have come into the file.
TEST_F(LibraryFile, ChecksItsStackInHundredsOfFunctions)
{
    const std::string_view code = image.Code();
    const size_t failure = code.find(std::string_view("\xB9\x02\x00\x00\x00\xCD\x29", 7)); // mov ecx, 2; int 0x29
    ASSERT_NE(failure, std::string_view::npos);
    size_t calls = 0;
    for (size_t place = code.find('\xE8'); place != std::string_view::npos; place = code.find('\xE8', place + 1))
        calls += CallTarget(code, place) == failure ? 1 : 0;
    EXPECT_GT(calls, 200U);
}

TEST_F(LibraryFile, NamesNoFolderOfItsBuild)
{
    const std::string bytes = ReadBuiltFile("lyt64.dll");
    ASSERT_FALSE(bytes.empty());
    for (const char* folder : {LYT_SOURCE_FOLDER, "/home/", "/root/", "/tmp/", "/usr/", "src/", ".cpp"})
        EXPECT_EQ(bytes.find(folder), std::string::npos) << folder;
}

TEST_F(LibraryFile, CarriesNoTimeOfItsBuild)
{
    EXPECT_EQ(image.Headers().FileHeader.TimeDateStamp, 0U);
}

class HandedOutFile : public testing::TestWithParam<const char*>
{
};

INSTANTIATE_TEST_SUITE_P(, HandedOutFile,
                         testing::Values("lyt64.dll", "lytdata.dll", "lytsrc.dll", "lytcall.exe", "lytdlg.exe"));

TEST_P(HandedOutFile, HasAVersionRecord)
{
    const std::string file = GetParam();
    const std::string path = ProgramFolder() + "\\" + file;
    std::vector<char> block(GetFileVersionInfoSizeA(path.c_str(), nullptr));
    ASSERT_TRUE(GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
    const std::string stem = file.substr(0, file.find('.'));
    for (const auto& [name, text] :
         {std::pair("OriginalFilename", file.c_str()), std::pair("InternalName", stem.c_str()),
          std::pair("ProductName", "lyt64"), std::pair("ProductVersion", LYT_VERSION),
          std::pair("FileVersion", LYT_VERSION ".0")})
    {
        void* value = nullptr;
        UINT length = 0;
        ASSERT_TRUE(VerQueryValueA(block.data(), ("\\StringFileInfo\\040904B0\\" + std::string(name)).c_str(), &value,
                                   &length));
        EXPECT_STREQ(static_cast<const char*>(value), text) << name;
    }
}

TEST_F(LibraryFile, TellsTheSameVersionInItsManifest)
{
    HRSRC found = FindResourceA(library, MAKEINTRESOURCEA(2), MAKEINTRESOURCEA(24));
    ASSERT_NE(found, nullptr);
    const auto* text = static_cast<const char*>(LockResource(LoadResource(library, found)));
    const std::string manifest(text, SizeofResource(library, found));
    EXPECT_NE(manifest.find("name=\"lyt64\" version=\"" LYT_VERSION ".0\""), std::string::npos);
}

TEST_F(LibraryFile, ServesACallerInPlainC)
{
    char buffer[10] = "";
    EXPECT_EQ(ReadDocNameFromC("doc", buffer, sizeof buffer), 1);
    EXPECT_STREQ(buffer, "doc");
}
