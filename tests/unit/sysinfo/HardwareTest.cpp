#include "sysinfo/system/Hardware.h"

#include "Lines.h"

#include <gtest/gtest.h>

namespace
{

constexpr unsigned long long megabyte = 1ULL << 20;

Texts LinesOf(const HardwareFacts& facts)
{
    CStringList lines;
    AddHardwareLines(facts, lines);
    return TextsOf(lines);
}

Texts RootsOf(const char* windowsDirectory, const char* installDirectory)
{
    Texts roots;
    for (const CString& root : DiskRoots(windowsDirectory, installDirectory))
        roots.emplace_back(root.GetString());
    return roots;
}

} // namespace

TEST(Hardware, WordsEachFactInOrder)
{
    HardwareFacts facts;
    facts.processors = 8;
    facts.processorName = "Some CPU @ 3.00GHz";
    facts.processorSpeed = 2995;
    facts.memoryLoad = 42;
    facts.totalPhysical = 16384 * megabyte + 1;
    facts.freePhysical = 8192 * megabyte - 1;
    facts.totalPagingFile = 20000 * megabyte;
    facts.freePagingFile = 10000 * megabyte;
    facts.totalVirtual = 134217727 * megabyte;
    facts.freeVirtual = 134217700 * megabyte;
    facts.pageSize = 4096;
    facts.granularity = 65536;
    facts.disks = {{"C:\\", 476000 * megabyte, 1234 * megabyte}, {"D:\\", 12345678 * megabyte, 0}};
    EXPECT_EQ(LinesOf(facts), (Texts{
                                  "Number Of Processors : 8",
                                  "CPU Name  : Some CPU @ 3.00GHz",
                                  "CPU Speed : 2995",
                                  "Memory in use: 42 %",
                                  "Total physical memory : 16384 MB",
                                  "Free physical memory  : 8191 MB",
                                  "Total paging file     : 20000 MB",
                                  "Free paging file      : 10000 MB",
                                  "Total virtual memory  : 134217727 MB",
                                  "Free virtual memory   : 134217700 MB",
                                  "Page Size : 4096",
                                  "Virtual Memory Granularity : 65536",
                                  "Total Hard Disk Space on C:\\ :  476000 MB",
                                  "Free Hard Disk Space on C:\\  :    1234 MB",
                                  "Total Hard Disk Space on D:\\ : 12345678 MB",
                                  "Free Hard Disk Space on D:\\  :       0 MB",
                              }));
}

TEST(Hardware, LeavesOutWhatItDoesNotKnowAndShowsZeroForTheRest)
{
    EXPECT_EQ(LinesOf(HardwareFacts()), (Texts{
                                            "Number Of Processors : 0",
                                            "Memory in use: 0 %",
                                            "Total physical memory : 0 MB",
                                            "Free physical memory  : 0 MB",
                                            "Total paging file     : 0 MB",
                                            "Free paging file      : 0 MB",
                                            "Total virtual memory  : 0 MB",
                                            "Free virtual memory   : 0 MB",
                                            "Page Size : 0",
                                            "Virtual Memory Granularity : 0",
                                        }));
}

TEST(Hardware, AsksEachDriveOnce)
{
    EXPECT_EQ(RootsOf("C:\\windows", "C:\\lyt\\"), Texts{"C:\\"});
    EXPECT_EQ(RootsOf("c:\\windows", "C:\\lyt\\"), Texts{"C:\\"});
    EXPECT_EQ(RootsOf("C:\\windows", "c:\\lyt\\"), Texts{"C:\\"});
}

TEST(Hardware, ShowsTheDriveOfAnInstallationElsewhereInUpperCase)
{
    EXPECT_EQ(RootsOf("c:\\windows", "d:\\lyt\\"), (Texts{"C:\\", "D:\\"}));
    EXPECT_EQ(RootsOf("c:\\windows", "\\\\server\\lyt\\"), (Texts{"C:\\", "\\\\S"}));
}

TEST(Hardware, WordsTheScreenResolution)
{
    EXPECT_EQ(ScreenLine(1920, 1080), "Screen Resolution: 1920 x 1080");
}
