#include "sysinfo/system/WindowsName.h"

#include <gtest/gtest.h>

namespace
{

constexpr unsigned workstation = 1;
constexpr unsigned server = 3;
constexpr unsigned intel = 0;
constexpr unsigned itanium = 6;
constexpr unsigned amd64 = 9;

// A release with no build, edition or service pack, on a processor that names no width.
WindowsFacts Release(unsigned major, unsigned minor, unsigned productType, unsigned suite = 0,
                     unsigned architecture = itanium)
{
    WindowsFacts facts;
    facts.major = major;
    facts.minor = minor;
    facts.productType = productType;
    facts.suite = suite;
    facts.architecture = architecture;
    return facts;
}

// The name without what stands before and after every name.
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

} // namespace

TEST(WindowsName, NamesEachRelease)
{
    static const struct
    {
        unsigned major;
        unsigned minor;
        unsigned productType;
        unsigned suite;
        unsigned architecture;
        const char* name;
    } releases[] = {
        {5, 0, workstation, 0, intel, "Windows 2000 Professional"},
        {5, 0, workstation, 128, intel, "Windows 2000 Professional"},
        {5, 0, server, 128 | 2, intel, "Windows 2000 Datacenter Server"},
        {5, 0, server, 2, intel, "Windows 2000 Advanced Server"},
        {5, 0, server, 0, intel, "Windows 2000 Server"},
        {5, 0, 2, 0, intel, "Windows 2000 Server"},
        {5, 1, workstation, 512, intel, "Windows XP Home Edition"},
        {5, 1, workstation, 0, intel, "Windows XP Professional"},
        {5, 1, server, 512, intel, "Windows XP Home Edition"},
        {5, 3, workstation, 0, intel, "Windows Version 5.3 "},
        {5, 10, server, 0, intel, "Windows Version 5.10 "},
        {6, 0, workstation, 0, amd64, "Windows Vista  Version 6.0.0 "},
        {6, 0, server, 0, amd64, "Windows Server 2008  Version 6.0.0 "},
        {6, 1, workstation, 0, amd64, "Windows 7  Version 6.1.0 "},
        {6, 1, server, 0, amd64, "Windows Server 2008 R2  Version 6.1.0 "},
        {6, 2, workstation, 0, amd64, "Windows 8  Version 6.2.0 "},
        {6, 2, server, 0, amd64, "Windows Server 2012  Version 6.2.0 "},
        {6, 3, workstation, 0, amd64, "Windows 8.1  Version 6.3.0 "},
        {6, 3, server, 0, amd64, "Windows Server 2012 R2  Version 6.3.0 "},
        {6, 4, workstation, 0, amd64, "Windows  Version 6.4.0 "},
        {6, 4, server, 0, amd64, "Windows  Version 6.4.0 "},
        {7, 0, workstation, 0, amd64, "Windows Version 7.0.0 "},
        {9, 9, server, 0, amd64, "Windows Version 9.9.0 "},
        {11, 2, workstation, 0, amd64, "Windows Version 11.2.0 "},
    };
    for (const auto& r : releases)
    {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(NameOf(Release(r.major, r.minor, r.productType, r.suite, r.architecture)), r.name);
    }
}

TEST(WindowsName, NamesEachServer2003)
{
    static const struct
    {
        bool isR2;
        unsigned productType;
        unsigned suite;
        unsigned architecture;
        const char* name;
    } releases[] = {
        {true, server, 8192, intel, "Windows Server 2003 R2, Standard Edition"},
        {true, workstation, 0, amd64, "Windows Server 2003 R2, "},
        {false, server, 8192 | 32768, intel, "Windows Storage Server 2003Standard Edition"},
        {false, workstation, 8192, amd64, "Windows Storage Server 2003"},
        {false, server, 32768, intel, "Windows Home ServerStandard Edition"},
        {false, workstation, 0, amd64, "Windows XP Professional x64 Edition"},
        {false, workstation, 0, intel, "Windows Server 2003, "},
        {false, server, 128 | 2, amd64, "Windows Server 2003, Datacenter x64 Edition"},
        {false, server, 2, amd64, "Windows Server 2003, Enterprise x64 Edition"},
        {false, server, 0, amd64, "Windows Server 2003, Standard x64 Edition"},
        {false, server, 16384, amd64, "Windows Server 2003, Standard x64 Edition"},
        {false, server, 1024, amd64, "Windows Server 2003, Standard x64 Edition"},
        {false, server, 16384 | 128, intel, "Windows Server 2003, Compute Cluster Edition"},
        {false, server, 128 | 2, intel, "Windows Server 2003, Datacenter Edition"},
        {false, server, 2 | 1024, intel, "Windows Server 2003, Enterprise Edition"},
        {false, server, 1024, intel, "Windows Server 2003, Web Edition"},
        {false, server, 0, intel, "Windows Server 2003, Standard Edition"},
        {false, server, 0, itanium, "Windows Server 2003, Standard Edition"},
    };
    for (const auto& r : releases)
    {
        SCOPED_TRACE(r.name);
        WindowsFacts facts = Release(5, 2, r.productType, r.suite, r.architecture);
        facts.isServerR2 = r.isR2;
        EXPECT_EQ(NameOf(facts), r.name);
    }
}

TEST(WindowsName, TakesTheNameFromTheRegistryFromVersion10On)
{
    WindowsFacts facts = Release(10, 0, workstation, 0, amd64);
    facts.registryName = "Windows 10 Pro";
    facts.releaseId = "1909";
    EXPECT_EQ(NameOf(facts), "Windows 10 Pro 1909 Version 10.0.0 ");
    facts.minor = 7;
    facts.productType = server;
    EXPECT_EQ(NameOf(facts), "Windows 10 Pro 1909 Version 10.7.0 ");
}

TEST(WindowsName, LeavesThreeBlanksWhereTheRegistryHasNoName)
{
    EXPECT_EQ(NameOf(Release(10, 0, workstation, 0, amd64)), "Windows   Version 10.0.0 ");
}

TEST(WindowsName, ShowsAnEmptyRegistryNameAsItIs)
{
    WindowsFacts facts = Release(10, 0, workstation, 0, amd64);
    facts.registryName = "";
    facts.releaseId = "2009";
    EXPECT_EQ(NameOf(facts), " 2009 Version 10.0.0 ");
}

TEST(WindowsName, StandsForVersion10WhenTheVersionCannotBeRead)
{
    EXPECT_EQ(WindowsNameLine(WindowsFacts()), "Microsoft Windows   Version 10.0.0  (build 0), 32-bit (Kernel ) ");
}

TEST(WindowsName, PutsTheEditionAfterTheVersionWithoutABlankOfItsOwn)
{
    WindowsFacts facts = Release(6, 1, workstation, 0, amd64);
    facts.build = 7601;
    facts.edition = 48;
    facts.servicePack = "Service Pack 1";
    facts.kernelVersion = "6.1.7601.1; 6,1,7601,24545; C:\\Windows\\system32\\kernel32.dll; 01.02.2020 03:04";
    EXPECT_EQ(WindowsNameLine(facts), "Microsoft Windows 7  Version 6.1.7601 Professional Service Pack 1 (build 7601), "
                                      "64-bit (Kernel 6.1.7601.1) ");
}

TEST(WindowsName, PutsTheEditionAfterOlderReleasesToo)
{
    WindowsFacts facts = Release(5, 1, workstation, 0, intel);
    facts.edition = 48;
    EXPECT_EQ(NameOf(facts), "Windows XP ProfessionalProfessional");
}

TEST(WindowsName, NamesEachEdition)
{
    static const struct
    {
        unsigned edition;
        const char* name;
    } named[] = {
        {1, "Ultimate Edition"},
        {28, "Ultimate Edition"},
        {71, "Ultimate Edition"},
        {2, "Home Basic Edition"},
        {67, "Home Basic Edition"},
        {3, "Home Premium Edition"},
        {26, "Home Premium Edition"},
        {68, "Home Premium Edition"},
        {4, "Enterprise Edition"},
        {10, "Enterprise Edition"},
        {27, "Enterprise Edition"},
        {70, "Enterprise Edition"},
        {125, "Enterprise Edition"},
        {126, "Enterprise Edition"},
        {6, "Business Edition"},
        {16, "Business Edition"},
        {7, "Standard Edition"},
        {8, "Datacenter Edition"},
        {9, "Small Business Server"},
        {11, "Starter Edition"},
        {47, "Starter Edition"},
        {66, "Starter Edition"},
        {12, "Datacenter Edition (core installation)"},
        {13, "Standard Edition (core installation)"},
        {14, "Enterprise Edition (core installation)"},
        {15, "Enterprise Edition for Itanium-based Systems"},
        {17, "Web Server Edition"},
        {18, "Cluster Server Edition"},
        {25, "Small Business Server Premium Edition"},
        {29, "Web Server Edition (core installation)"},
        {48, "Professional"},
        {49, "Professional"},
        {69, "Professional"},
        {98, "Home Edition"},
        {101, "Home Edition"},
    };
    std::vector<std::string> names(300);
    for (const auto& n : named)
        names[n.edition] = n.name;
    for (unsigned edition = 0; edition < names.size(); ++edition)
    {
        SCOPED_TRACE(edition);
        WindowsFacts facts = Release(6, 1, workstation, 0, amd64);
        facts.edition = edition;
        EXPECT_EQ(NameOf(facts), "Windows 7  Version 6.1.0 " + names[edition]);
    }
}

TEST(WindowsName, IsEmptyForSystemsOlderThanWindows2000)
{
    WindowsFacts facts = Release(4, 10, workstation);
    EXPECT_EQ(WindowsNameLine(facts), "");
    facts.major = 5;
    facts.platform = 1;
    EXPECT_EQ(WindowsNameLine(facts), "");
}

TEST(WindowsName, TellsTheWidthOfTwoArchitectures)
{
    const auto widthOf = [](unsigned architecture)
    {
        const std::string line = WindowsNameLine(Release(6, 1, workstation, 0, architecture)).GetString();
        const std::string tail = line.substr(line.find("(build 0)") + 9);
        return tail.substr(0, tail.find(" (Kernel"));
    };
    EXPECT_EQ(widthOf(amd64), ", 64-bit");
    EXPECT_EQ(widthOf(intel), ", 32-bit");
    EXPECT_EQ(widthOf(5), "");
    EXPECT_EQ(widthOf(12), "");
}

TEST(WindowsName, ShowsAKernelVersionWithoutFurtherPartsWhole)
{
    WindowsFacts facts = Release(6, 1, workstation);
    facts.kernelVersion = "6.1.1";
    EXPECT_EQ(WindowsNameLine(facts), "Microsoft Windows 7  Version 6.1.0  (build 0) (Kernel 6.1.1) ");
}
