#include "ReportTest.h"

#include "support/ImportHook.h"

#include <cstdio>

namespace
{

// A machine with six figures that cannot be taken for one another.
BOOL WINAPI TellMemory(MEMORYSTATUSEX* memory)
{
    memory->dwMemoryLoad = 42;
    memory->ullTotalPhys = 1001ULL << 20;
    memory->ullAvailPhys = 1002ULL << 20;
    memory->ullTotalPageFile = 1003ULL << 20;
    memory->ullAvailPageFile = 1004ULL << 20;
    memory->ullTotalVirtual = 1005ULL << 20;
    memory->ullAvailVirtual = 1006ULL << 20;
    return TRUE;
}

BOOL WINAPI RefuseMemory(MEMORYSTATUSEX* /*memory*/)
{
    return FALSE;
}

constexpr const char* processorKey = "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";

class Hardware : public ReportTest
{
protected:
    // A number after a label, checked against what the platform says at the moment; memory and disks move.
    static void ExpectNear(const Texts& lines, const std::string& label, unsigned long long bytes)
    {
        const std::string line = LineOf(lines, label);
        ASSERT_TRUE(line.starts_with(label)) << line;
        ASSERT_TRUE(line.ends_with(" MB")) << line;
        const double shown = std::stod(line.substr(label.size()));
        EXPECT_NEAR(shown, static_cast<double>(bytes >> 20), 4096.0) << line;
    }
};

} // namespace

TEST_F(Hardware, NamesTheReleaseThatThePlatformTells)
{
    OSVERSIONINFOEXA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    ASSERT_TRUE(GetVersionExA(static_cast<OSVERSIONINFOA*>(static_cast<void*>(&version))));
    char numbers[64];
    std::snprintf(numbers, sizeof numbers, " Version %lu.%lu.%lu ", version.dwMajorVersion, version.dwMinorVersion,
                  version.dwBuildNumber);
    char build[64];
    std::snprintf(build, sizeof build, " (build %lu), 64-bit (Kernel ", version.dwBuildNumber);

    const std::string line = Report()[1];
    EXPECT_NE(line.find(numbers), std::string::npos) << line;
    EXPECT_NE(line.find(build), std::string::npos) << line;
    if (version.szCSDVersion[0] != '\0')
    {
        EXPECT_NE(line.find(std::string(" ") + version.szCSDVersion + build), std::string::npos) << line;
    }
    EXPECT_TRUE(line.ends_with(") ")) << line;
}

TEST_F(Hardware, SixtyFourBitProcessCountsItsProcessorsAndPages)
{
    SYSTEM_INFO system = {};
    GetSystemInfo(&system);
    BOOL isWow64 = TRUE;
    IsWow64Process(GetCurrentProcess(), &isWow64);
    EXPECT_FALSE(isWow64);
    const Texts lines = Report();
    EXPECT_EQ(lines[2], "Number Of Processors : " + std::to_string(system.dwNumberOfProcessors));
    EXPECT_TRUE(HasLine(lines, "Page Size : " + std::to_string(system.dwPageSize)));
    EXPECT_TRUE(HasLine(lines, "Virtual Memory Granularity : " + std::to_string(system.dwAllocationGranularity)));
}

TEST_F(Hardware, LeavesOutAnUnknownProcessor)
{
    registry.Remove(HKEY_LOCAL_MACHINE, processorKey, "ProcessorNameString");
    registry.Remove(HKEY_LOCAL_MACHINE, processorKey, "~MHz");
    const Texts lines = Report();
    EXPECT_FALSE(HasLine(lines, "CPU "));
    EXPECT_TRUE(lines[3].starts_with("Memory in use: ")) << lines[3];
}

TEST_F(Hardware, LeavesOutAProcessorNameOfMoreThan256Bytes)
{
    registry.SetText(HKEY_LOCAL_MACHINE, processorKey, "ProcessorNameString", std::string(255, 'x'));
    EXPECT_TRUE(HasLine(Report(), "CPU Name  : " + std::string(255, 'x')));
    registry.SetText(HKEY_LOCAL_MACHINE, processorKey, "ProcessorNameString", std::string(256, 'x'));
    EXPECT_FALSE(HasLine(Report(), "CPU Name"));
}

TEST_F(Hardware, TellsTheSixMemoryFiguresApart)
{
    const ImportHook hook(GetModuleHandleA("lyt64"), "GlobalMemoryStatusEx", TellMemory);
    EXPECT_EQ(LinesBetween(Report(), "Memory in use: 42 %", "Page Size : "),
              (Texts{"Total physical memory : 1001 MB", "Free physical memory  : 1002 MB",
                     "Total paging file     : 1003 MB", "Free paging file      : 1004 MB",
                     "Total virtual memory  : 1005 MB", "Free virtual memory   : 1006 MB"}));
}

TEST_F(Hardware, ShowsZerosForMemoryThatThePlatformDoesNotTell)
{
    const ImportHook hook(GetModuleHandleA("lyt64"), "GlobalMemoryStatusEx", RefuseMemory);
    EXPECT_EQ(LineOf(Report(), "Memory in use: "), "Memory in use: 0 %");
    EXPECT_EQ(LineOf(Report(), "Free virtual memory   : "), "Free virtual memory   : 0 MB");
}

TEST_F(Hardware, InstallationOnTheWindowsDriveAddsNoSecondPairOfDisks)
{
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir", "", "c:\\lyt");
    const Texts lines = Report();
    EXPECT_EQ(CountLines(lines, "Total Hard Disk Space on "), 1U);
    EXPECT_EQ(CountLines(lines, "Free Hard Disk Space on "), 1U);
    ULARGE_INTEGER total = {};
    ASSERT_TRUE(GetDiskFreeSpaceExA("C:\\", nullptr, &total, nullptr));
    ExpectNear(lines, "Total Hard Disk Space on C:\\ : ", total.QuadPart);
    EXPECT_TRUE(HasLine(lines, "Free Hard Disk Space on C:\\  : "));
}

TEST_F(Hardware, InstallationOnAnotherDriveHasItsOwnPair)
{
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir", "", "z:\\lyt");
    const Texts lines = Report();
    const size_t first = FindLine(lines, "Total Hard Disk Space on C:\\ : ");
    ASSERT_LT(first + 4, lines.size());
    EXPECT_TRUE(lines[first + 1].starts_with("Free Hard Disk Space on C:\\  : ")) << lines[first + 1];
    EXPECT_TRUE(lines[first + 2].starts_with("Total Hard Disk Space on Z:\\ : ")) << lines[first + 2];
    EXPECT_TRUE(lines[first + 3].starts_with("Free Hard Disk Space on Z:\\  : ")) << lines[first + 3];
    EXPECT_EQ(lines[first + 4], "Printers");
}

TEST_F(Hardware, DriveThatCannotBeAskedHasNoLines)
{
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir", "", "q:\\lyt");
    EXPECT_EQ(CountLines(Report(), "Total Hard Disk Space on "), 1U);
}
