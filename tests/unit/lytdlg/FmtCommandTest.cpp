// `lytdlg fmt` on files, folders and the standard input.
#include "CommandRun.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{

namespace fs = std::filesystem;

const std::string written = "$VERSION  1\n$LAYOUT S\nBegin Dialog Box 1, 2, \"T\", .M\n$VALUES\nA=b\n\n$END\n";
const std::string form = "$VERSION 1\n$LAYOUT S\nBegin Dialog Box 1, 2, \"T\", .M\n$VALUES\n    A = b\n\n$END\n";

size_t CountFiles(const std::string& folder)
{
    return static_cast<size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

} // namespace

TEST(FmtCommand, WritesWhatChangesAndNamesIt)
{
    const TestFolder folder;
    const std::string file = folder.Write("a.dlg", written);
    EXPECT_EQ(CommandRun({"fmt", file}), CommandRun(0, file + ": formatted\n"));
    EXPECT_EQ(folder.Read("a.dlg"), form);
    EXPECT_EQ(CommandRun({"fmt", file}), CommandRun(0));
    EXPECT_EQ(CountFiles(folder.Path()), 1U);
}

TEST(FmtCommand, FormatsTheDescriptionsOfAFolder)
{
    const TestFolder folder;
    const std::string second = folder.Write("b.DLG", written);
    const std::string first = folder.Write("a.dlg", written);
    folder.Write("c.dlg", form);
    folder.Write("d.txt", written);
    EXPECT_EQ(CommandRun({"fmt", folder.Path()}), CommandRun(0, first + ": formatted\n" + second + ": formatted\n"));
    EXPECT_EQ(folder.Read("d.txt"), written);
}

TEST(FmtCommand, ListsWithCheckWhatWouldChange)
{
    const TestFolder folder;
    const std::string file = folder.Write("a.dlg", written);
    folder.Write("b.dlg", form);
    EXPECT_EQ(CommandRun({"fmt", folder.Path(), "--check"}), CommandRun(1, file + "\n"));
    EXPECT_EQ(folder.Read("a.dlg"), written);
    EXPECT_EQ(CommandRun({"fmt", folder.File("b.dlg"), "--check"}), CommandRun(0));
}

TEST(FmtCommand, TakesTheStandardInputToTheStandardOutput)
{
    const TestFolder folder;
    const StandardInput input(folder.Write("in.dlg", "$VERSION  1\r\n$LAYOUT  S\r\n"));
    // The capture is read as a text, which on Windows takes one CR from each line end: more would show.
    const std::string end = fs::path::preferred_separator == '\\' ? "\n" : "\r\n";
    EXPECT_EQ(CommandRun({"fmt", "-"}), CommandRun(0, "$VERSION 1" + end + "$LAYOUT S" + end));
    const StandardInput again(folder.Write("in.dlg", written));
    EXPECT_EQ(CommandRun({"fmt", "-", "--check"}), CommandRun(1, "-\n"));
}

TEST(FmtCommand, LeavesAFileWithTooManyDefinesAndSaysSo)
{
    const TestFolder folder;
    std::string marks;
    for (char name = 'A'; name <= 'I'; ++name)
        marks += std::string("<") + name + "\n>\n";
    const std::string many = folder.Write("a.dlg", marks + written);
    const std::string other = folder.Write("b.dlg", written);
    EXPECT_EQ(CommandRun({"fmt", folder.Path()}),
              CommandRun(1, other + ": formatted\n",
                         "lytdlg: " + many +
                             " asks for 9 defines, and no more than 8 can be tried in every choice; it is left as it "
                             "is\n"));
    EXPECT_EQ(folder.Read("a.dlg"), marks + written);
}

TEST(FmtCommand, LeavesAWriteProtectedFileAsItWas)
{
    const TestFolder folder;
    const std::string file = folder.Write("a.dlg", written);
    fs::permissions(file, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    EXPECT_EQ(CommandRun({"fmt", file}),
              CommandRun(1, "", "lytdlg: " + file + " is write-protected; it stays as it was\n"));
    EXPECT_EQ(folder.Read("a.dlg"), written);
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
}

TEST(FmtCommand, SaysWhatToWriteWhenItIsNotUnderstood)
{
    const TestFolder folder;
    const std::string hint = "`lytdlg --help` lists commands and options.\n";
    EXPECT_EQ(CommandRun({"fmt", "none.dlg"}),
              CommandRun(2, "",
                         "lytdlg: there is no file or folder none.dlg; name descriptions, their folder, or - for the "
                         "standard input\n" +
                             hint));
    EXPECT_EQ(CommandRun({"fmt", folder.Path()}),
              CommandRun(2, "",
                         "lytdlg: the folder " + folder.Path() +
                             " holds no description (*.dlg); name the one that does\n" + hint));
}
