// The export table of a library file: what it says, and that no file does harm.
#include "LibraryFile.h"

#include "lytdlg/judge/ExportTable.h"
#include "support/Dice.h"

#include <gtest/gtest.h>

namespace lytdlg
{

namespace
{

std::string NamesIn(std::string_view bytes)
{
    std::string list;
    for (const std::string& name : ReadExports(bytes).names)
        list += (list.empty() ? "" : ",") + name;
    return list;
}

} // namespace

TEST(ExportTable, NamesTheFunctionsOfALibrary)
{
    const std::string library = LibraryFile({"LookUp", "NextItem", "OpenList"});
    EXPECT_EQ(ReadExports(library).form, LibraryForm::Library);
    EXPECT_EQ(NamesIn(library), "LookUp,NextItem,OpenList");
    EXPECT_EQ(ReadExports(LibraryFile({})).form, LibraryForm::Library);
    EXPECT_EQ(NamesIn(LibraryFile({})), "");
}

TEST(ExportTable, NamesTheLibrariesThatAreNeeded)
{
    const std::vector<std::string> needed = {"KERNEL32.dll", "libstdc++-6.dll"};
    EXPECT_EQ(ReadExports(LibraryFile({"LookUp"}, machine64, needed)).needed, needed);
    EXPECT_EQ(ReadExports(LibraryFile({"LookUp"})).needed, std::vector<std::string>());
}

TEST(ExportTable, TellsLibrariesThatA64BitProgramCannotLoad)
{
    EXPECT_EQ(ReadExports(LibraryFile({"LookUp"}, machine32)).form, LibraryForm::OtherBits);
    EXPECT_EQ(NamesIn(LibraryFile({"LookUp"}, machine32)), "");
    EXPECT_EQ(ReadExports("").form, LibraryForm::NoLibrary);
    EXPECT_EQ(ReadExports("MZ").form, LibraryForm::NoLibrary);
    EXPECT_EQ(ReadExports("a text").form, LibraryForm::NoLibrary);
}

TEST(ExportTable, EndsWithTheFileWhereverThatIsCut)
{
    const std::string library = LibraryFile({"LookUp", "NextItem", "OpenList"});
    const std::string all = NamesIn(library);
    for (size_t length = 0; length < library.size(); ++length)
    {
        // A block of the exact size lets a memory checker see each byte beyond it.
        const std::vector<char> cut(library.begin(), library.begin() + static_cast<std::ptrdiff_t>(length));
        const std::string names = NamesIn({cut.data(), cut.size()});
        EXPECT_TRUE(all.starts_with(names)) << length << ": " << names;
        EXPECT_NE(names, all) << length;
        EXPECT_EQ(ReadExports({cut.data(), cut.size()}).form, LibraryForm::NoLibrary) << length;
    }
}

TEST(ExportTable, TakesAnyBytesForNumbers)
{
    Dice dice(1);
    const std::string library = LibraryFile({"LookUp", "NextItem", "OpenList"});
    for (int round = 0; round < 20000; ++round)
    {
        std::vector<char> bytes(library.begin(), library.end());
        for (int change = 0; change < 4; ++change)
            bytes[2 + dice.Below(bytes.size() - 2)] = static_cast<char>(dice.Below(256));
        EXPECT_LE(ReadExports({bytes.data(), bytes.size()}).names.size(), bytes.size());
    }
}

TEST(ExportTable, ReadsNoMoreThanAFairTableHolds)
{
    // A count that no file can have, and names that all begin at one long text without an end.
    std::string library = LibraryFile({"LookUp"});
    library.replace(512 + 24, 4, "\xFF\xFF\xFF\xFF", 4);
    EXPECT_EQ(NamesIn(library).substr(0, 6), "LookUp");
    std::string endless = LibraryFile({std::string(400, 'x')});
    EXPECT_EQ(NamesIn(endless), "");
}

} // namespace lytdlg
