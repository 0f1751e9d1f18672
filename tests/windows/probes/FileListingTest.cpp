#include "ProbeFixture.h"

#include "support/FailingAllocation.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>

namespace fs = std::filesystem;

namespace
{

// The platform gives out the lowest handle that is free, so one that is left open moves it.
HANDLE LowestFreeHandle()
{
    HANDLE event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    CloseHandle(event);
    return event;
}

class FileListing : public ProbeFixture
{
protected:
    Texts Lines(const std::string& mask, int recursive = 0) const { return LinesIn(folder.Path(), mask, recursive); }
    static Texts LinesIn(const std::string& directory, const std::string& mask, int recursive)
    {
        return LinesOf([&] { lytListFiles(directory.c_str(), mask.c_str(), recursive); });
    }
    // Sets the time of the last write, in the universal time zone.
    void SetTime(const std::string& file, const SYSTEMTIME& time) const
    {
        FILETIME written = {};
        SystemTimeToFileTime(&time, &written);
        HANDLE handle = CreateFileA(file.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        ASSERT_NE(handle, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(SetFileTime(handle, nullptr, nullptr, &written));
        CloseHandle(handle);
    }
    // A file of the folder with a fixed time, and its line.
    std::string FileLine(const std::string& name, const std::string& size) const
    {
        const std::string path = folder.Path() + "\\" + name;
        SetTime(path, {2026, 1, 0, 15, 12, 30, 40, 0});
        const std::string padding(path.size() < 30 ? 30 - path.size() : 0, ' ');
        return "  " + path + padding + " Size: " + std::string(10 - size.size(), ' ') + size + " Date: " + shown;
    }

    // Noon of that day, moved twice by the distance of this machine's zone.
    static std::string ShownTime()
    {
        TIME_ZONE_INFORMATION zone = {};
        GetTimeZoneInformation(&zone);
        std::tm time = {};
        time.tm_year = 126;
        time.tm_mday = 15;
        time.tm_hour = 12;
        time.tm_min = 30 - static_cast<int>(2 * (zone.Bias + zone.StandardBias));
        time.tm_sec = 40;
        const std::time_t moved = _mkgmtime(&time);
        char text[128] = "";
        std::strftime(text, sizeof text, "%c", std::gmtime(&moved));
        return text;
    }

    const std::string shown = ShownTime();
};

} // namespace

TEST_F(FileListing, ShowsTheFilesThatTheMaskNamesAndGoesDownOnlyWhenAsked)
{
    folder.Write("one.txt", "1");
    folder.Write("other.dll", "");
    folder.Write("sub.d/two.txt", "22");
    folder.Write("sub.d/deep/three.txt", "333");
    const std::string one = FileLine("one.txt", "1");
    const std::string two = FileLine("sub.d\\two.txt", "2");
    const std::string three = FileLine("sub.d\\deep\\three.txt", "3");
    EXPECT_EQ(Lines("*.txt"), (Texts{one}));
    EXPECT_EQ(Lines("*.txt", 2), (Texts{one}));
    EXPECT_EQ(Lines("*.txt", 1), (Texts{one, two, three}));
    EXPECT_EQ(LinesIn(folder.Path() + "\\", "one*.*", 0), (Texts{one}));
    EXPECT_EQ(Lines("sub*.*"), Texts());
    EXPECT_EQ(Lines("sub*"), (Texts{"  " + folder.Path() + "\\sub.d"}));
    EXPECT_EQ(LinesIn(folder.Path() + "\\none", "*.*", 1), Texts());
    EXPECT_EQ(LinesIn("Cannot open registry key Software", "lyt*.*", 0), Texts());
    // Without a directory it is the current one's.
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const Texts lines = LinesIn("", "one.txt", 0);
    fs::current_path(before);
    EXPECT_EQ(lines, (Texts{"  one.txt" + std::string(23, ' ') + " Size:          1 Date: " + shown}));
}

TEST_F(FileListing, ShowsTheTimeMovedTwiceByTheZone)
{
    folder.Write("a.txt", "");
    const std::string line = FileLine("a.txt", "0");
    EXPECT_EQ(Lines("*.txt"), (Texts{line}));
    const char* zone = std::getenv("TZ");
    if (zone != nullptr && std::string(zone) == "JST-9")
    {
        EXPECT_TRUE(line.ends_with("Date: 01/16/26 06:30:40"));
    }
}

TEST_F(FileListing, ShowsADirectoryWithFurtherAttributesAsAFile)
{
    folder.Write("hidden/a.txt", "");
    const std::string path = folder.Path() + "\\hidden";
    if (!SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN) ||
        GetFileAttributesA(path.c_str()) == FILE_ATTRIBUTE_DIRECTORY)
        GTEST_SKIP() << "this file system keeps no attributes";
    const Texts expected = {FileLine("hidden", "0")};
    EXPECT_EQ(Lines("*.*"), expected);
    EXPECT_EQ(Lines("*", 1), expected);
}

TEST_F(FileListing, ShowsTheLow32BitsOfALargeSizeAndAllOfManyFiles)
{
    const std::string path = folder.Write("large.bin", "");
    std::error_code failure;
    fs::resize_file(path, 4'294'967'296ULL + 5, failure);
    ASSERT_FALSE(failure) << failure.message();
    const Texts expected = {FileLine("large.bin", "5")};
    EXPECT_EQ(Lines("large.bin"), expected);
    for (int i = 0; i < 300; ++i)
        folder.Write("file" + std::to_string(i) + ".txt", "");
    EXPECT_EQ(Lines("*.txt").size(), 300U);
    // Of a name beyond the platform's length it would take the beginning.
    EXPECT_EQ(LinesIn("", folder.Path() + "\\*" + std::string(65'536, 'x'), 0), Texts());
}

TEST_F(FileListing, ClosesItsSearchWhenItBreaksOff)
{
    for (char letter = 'a'; letter <= 'z'; ++letter)
        folder.Write(std::string(40, letter), "");
    const auto breakOff = [&] { return FailEachAllocation([&] { lytListFiles(folder.Path().c_str(), "*", 0); }); };
    // The first exception of a process takes a handle for the runtime.
    EXPECT_GT(breakOff(), 26);
    const HANDLE before = LowestFreeHandle();
    breakOff();
    EXPECT_EQ(LowestFreeHandle(), before);
    TakeLines();
}
