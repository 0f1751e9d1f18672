// The lines on the machine and its system.
#include "sysinfo/system/Hardware.h"
#include "sysinfo/system/KernelVersion.h"
#include "sysinfo/system/WindowsName.h"

#include "Lines.h"
#include "unit/Readings.h"

#include <climits>
#include <sstream>

namespace
{

constexpr unsigned long long megabyte = 1ULL << 20;
constexpr unsigned workstation = 1;
constexpr unsigned server = 3;
constexpr unsigned intel = 0;
constexpr unsigned itanium = 6;
constexpr unsigned amd64 = 9;

Texts HardwareLines(const HardwareFacts& facts)
{
    CStringList lines;
    AddHardwareLines(facts, lines);
    return TextsOf(lines);
}

std::string Roots(const char* windowsDirectory, const char* installDirectory)
{
    std::string roots;
    for (const CString& root : DiskRoots(windowsDirectory, installDirectory))
        roots += root + " ";
    return roots;
}

KernelVersionFacts Kernel(std::optional<CString> fileVersion)
{
    return {"6.3.9600", std::move(fileVersion), {1, 2, 3, 4}, "C:\\kernel32.dll", "20.11.2026 08:15"};
}

// A release with no build, edition or service pack.
WindowsFacts Release(unsigned major, unsigned minor, unsigned productType, unsigned suite = 0,
                     unsigned architecture = amd64)
{
    WindowsFacts facts;
    facts.major = major;
    facts.minor = minor;
    facts.productType = productType;
    facts.suite = suite;
    facts.architecture = architecture;
    return facts;
}

// The name without what is before and after every name.
std::string NameOf(const WindowsFacts& facts)
{
    const std::string line = WindowsNameLine(facts).GetString();
    const std::string head = "Microsoft ";
    std::string tail = " (build 0)";
    tail += facts.architecture == amd64 ? ", 64-bit" : facts.architecture == intel ? ", 32-bit" : "";
    tail += " (Kernel ) ";
    if (!line.starts_with(head) || !line.ends_with(tail))
        return "unexpected: " + line;
    return line.substr(head.size(), line.size() - head.size() - tail.size());
}

// Of a release whose numbers are given.
std::string NameOfRelease(const std::string& text)
{
    std::istringstream words(text);
    unsigned major = 0;
    unsigned minor = 0;
    unsigned productType = 0;
    unsigned suite = 0;
    unsigned architecture = 0;
    words >> major >> minor >> productType >> suite >> architecture;
    WindowsFacts facts = Release(major, minor, productType, suite, architecture);
    facts.isServerR2 = text.ends_with(" R2");
    return NameOf(facts);
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
    EXPECT_EQ(HardwareLines(facts),
              (Texts{"Number Of Processors : 8", "CPU Name  : Some CPU @ 3.00GHz", "CPU Speed : 2995",
                     "Memory in use: 42 %", "Total physical memory : 16384 MB", "Free physical memory  : 8191 MB",
                     "Total paging file     : 20000 MB", "Free paging file      : 10000 MB",
                     "Total virtual memory  : 134217727 MB", "Free virtual memory   : 134217700 MB", "Page Size : 4096",
                     "Virtual Memory Granularity : 65536", "Total Hard Disk Space on C:\\ :  476000 MB",
                     "Free Hard Disk Space on C:\\  :    1234 MB", "Total Hard Disk Space on D:\\ : 12345678 MB",
                     "Free Hard Disk Space on D:\\  :       0 MB"}));
    // What is not known has no line where it is a name, and is 0 otherwise.
    EXPECT_EQ(HardwareLines(HardwareFacts()),
              (Texts{"Number Of Processors : 0", "Memory in use: 0 %", "Total physical memory : 0 MB",
                     "Free physical memory  : 0 MB", "Total paging file     : 0 MB", "Free paging file      : 0 MB",
                     "Total virtual memory  : 0 MB", "Free virtual memory   : 0 MB", "Page Size : 0",
                     "Virtual Memory Granularity : 0"}));
    EXPECT_EQ(ScreenLine(1920, 1080), "Screen Resolution: 1920 x 1080");
}

TEST(Hardware, AsksEachDriveOnce)
{
    EXPECT_EQ(Roots("C:\\windows", "C:\\lyt\\"), "C:\\ ");
    EXPECT_EQ(Roots("c:\\windows", "C:\\lyt\\"), "C:\\ ");
    EXPECT_EQ(Roots("C:\\windows", "c:\\lyt\\"), "C:\\ ");
    EXPECT_EQ(Roots("c:\\windows", "d:\\lyt\\"), "C:\\ D:\\ ");
    EXPECT_EQ(Roots("c:\\windows", "\\\\server\\lyt\\"), "C:\\ \\\\S ");
}

TEST(KernelVersion, JoinsProductNumbersFileAndDate)
{
    EXPECT_EQ(KernelVersionText(Kernel("10.0.19041.1 (WinBuild.160101.0800)")),
              "6.3.9600; 10,0,19041,1; C:\\kernel32.dll; 20.11.2026 08:15");
    EXPECT_EQ(KernelVersionText(Kernel({})), "6.3.9600; 1,2,3,4; C:\\kernel32.dll; 20.11.2026 08:15");
    // Without any number there is no date.
    EXPECT_EQ(KernelVersionText(Kernel("none")), "6.3.9600; 0,0,0,0; C:\\kernel32.dll; ");
    EXPECT_EQ(KernelVersionText(Kernel("0.0.0.1")), "6.3.9600; 0,0,0,1; C:\\kernel32.dll; 20.11.2026 08:15");
    EXPECT_EQ(KernelDateText(1, 2, 2009, 3, 4), "01.02.2009 03:04");
    EXPECT_EQ(KernelDateText(31, 12, 1999, 23, 59), "31.12.1999 23:59");
    EXPECT_EQ(LanguageAndCodePage(0x04B00409), 0x040904B0U);
    EXPECT_EQ(LanguageAndCodePage(0x04E40407), 0x040704E4U);
}

TEST(KernelVersion, TakesItsNumbersByTheFirstSeparatorOfTheText)
{
    static const struct
    {
        const char* text;
        std::array<int, 4> numbers;
    } cases[] = {
        {"5.1.2600.5512", {5, 1, 2600, 5512}},
        {"5,1,2600,5512", {5, 1, 2600, 5512}},
        {"5,1.2600", {5, 1, 0, 0}},
        {"5.1,2600", {5, 1, 0, 0}},
        {"5, 1, 2600, 5512", {5, 1, 2600, 5512}},
        {"7", {7, 0, 0, 0}},
        {"5.99999999999.-99999999999.1", {5, INT_MAX, INT_MIN, 1}},
        {"version 7", {0, 0, 0, 0}},
        {"", {0, 0, 0, 0}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(VersionNumbers(Kernel(c.text)), c.numbers) << c.text;
}

TEST(WindowsName, NamesEachRelease)
{
    ExpectReadings("sysinfo/names.cases", "Release", NameOfRelease);
    EXPECT_EQ(WindowsNameLine(WindowsFacts()), "Microsoft Windows   Version 10.0.0  (build 0), 32-bit (Kernel ) ")
        << "when the version cannot be read";
    WindowsFacts old = Release(4, 10, workstation);
    EXPECT_EQ(WindowsNameLine(old), "");
    old.major = 5;
    old.platform = 1;
    EXPECT_EQ(WindowsNameLine(old), "");
}

TEST(WindowsName, ComesFromTheRegistryFromVersion10On)
{
    WindowsFacts facts = Release(10, 0, workstation);
    facts.registryName = "Windows 10 Pro";
    facts.releaseId = "1909";
    EXPECT_EQ(NameOf(facts), "Windows 10 Pro 1909 Version 10.0.0 ");
    facts.minor = 7;
    facts.productType = server;
    EXPECT_EQ(NameOf(facts), "Windows 10 Pro 1909 Version 10.7.0 ");
    facts.registryName = "";
    EXPECT_EQ(NameOf(facts), " 1909 Version 10.7.0 ");
}

TEST(WindowsName, IsFollowedByEditionServicePackBuildWidthAndKernel)
{
    WindowsFacts facts = Release(6, 1, workstation);
    facts.build = 7601;
    facts.edition = 48;
    facts.servicePack = "Service Pack 1";
    facts.kernelVersion = "6.1.7601.1; 6,1,7601,24545; C:\\Windows\\system32\\kernel32.dll; 01.02.2020 03:04";
    EXPECT_EQ(WindowsNameLine(facts), "Microsoft Windows 7  Version 6.1.7601 Professional Service Pack 1 (build 7601), "
                                      "64-bit (Kernel 6.1.7601.1) ");
    facts = Release(5, 1, workstation, 0, intel);
    facts.edition = 48;
    EXPECT_EQ(NameOf(facts), "Windows XP ProfessionalProfessional");
    for (const unsigned architecture : {5U, itanium, 12U})
    {
        facts = Release(6, 1, workstation, 0, architecture);
        facts.kernelVersion = "6.1.1";
        EXPECT_EQ(WindowsNameLine(facts), "Microsoft Windows 7  Version 6.1.0  (build 0) (Kernel 6.1.1) ");
    }
}

TEST(WindowsName, NamesEachEdition)
{
    std::vector<std::string> names(300);
    for (const TextCase& named : ReadingsOf("sysinfo/names.cases", "Edition"))
        names[std::stoul(named.given)] = named.made;
    for (unsigned edition = 0; edition < names.size(); ++edition)
    {
        WindowsFacts facts = Release(6, 1, workstation);
        facts.edition = edition;
        EXPECT_EQ(NameOf(facts), "Windows 7  Version 6.1.0 " + names[edition]) << edition;
    }
}
