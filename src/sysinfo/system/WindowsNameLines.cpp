#include "sysinfo/system/WindowsName.h"

namespace
{

constexpr unsigned platformNt = 2;
constexpr unsigned workstation = 1;
constexpr unsigned architectureIntel = 0;
constexpr unsigned architectureAmd64 = 9;

enum Suite : unsigned
{
    suiteEnterprise = 2,
    suiteDatacenter = 128,
    suitePersonal = 512,
    suiteBlade = 1024,
    suiteStorageServer = 8192,
    suiteComputeServer = 16384,
    suiteHomeServer = 32768
};

struct SuiteName
{
    unsigned suite; // 0 matches any
    const char* name;
};

constexpr SuiteName server2000Names[] = {
    {suiteDatacenter, "Datacenter Server"}, {suiteEnterprise, "Advanced Server"}, {0, "Server"}};
constexpr SuiteName server2003Amd64Names[] = {{suiteDatacenter, "Datacenter x64 Edition"},
                                              {suiteEnterprise, "Enterprise x64 Edition"},
                                              {0, "Standard x64 Edition"}};
constexpr SuiteName server2003Names[] = {{suiteComputeServer, "Compute Cluster Edition"},
                                         {suiteDatacenter, "Datacenter Edition"},
                                         {suiteEnterprise, "Enterprise Edition"},
                                         {suiteBlade, "Web Edition"},
                                         {0, "Standard Edition"}};

template <size_t count>
const char* NameBySuite(const SuiteName (&names)[count], unsigned suite)
{
    const SuiteName* entry = names;
    while (entry->suite != 0 && (suite & entry->suite) == 0)
        ++entry;
    return entry->name;
}

bool IsWorkstation(const WindowsFacts& facts)
{
    return facts.productType == workstation;
}

CString Server2003Name(const WindowsFacts& facts)
{
    const bool isAmd64 = facts.architecture == architectureAmd64;
    CString name;
    if (facts.isServerR2)
        name = "Windows Server 2003 R2, ";
    else if ((facts.suite & suiteStorageServer) != 0)
        name = "Windows Storage Server 2003";
    else if ((facts.suite & suiteHomeServer) != 0)
        name = "Windows Home Server";
    else if (IsWorkstation(facts) && isAmd64)
        name = "Windows XP Professional x64 Edition";
    else
        name = "Windows Server 2003, ";

    if (!IsWorkstation(facts))
        name += isAmd64 ? NameBySuite(server2003Amd64Names, facts.suite) : NameBySuite(server2003Names, facts.suite);
    return name;
}

CString Version5Name(const WindowsFacts& facts)
{
    switch (facts.minor)
    {
    case 0:
        return CString("Windows 2000 ") +
               (IsWorkstation(facts) ? "Professional" : NameBySuite(server2000Names, facts.suite));
    case 1: return CString("Windows XP ") + ((facts.suite & suitePersonal) != 0 ? "Home Edition" : "Professional");
    case 2: return Server2003Name(facts);
    default:
        CString name;
        name.Format("Windows Version %u.%u ", facts.major, facts.minor);
        return name;
    }
}

CString Version6Name(const WindowsFacts& facts)
{
    static constexpr struct
    {
        const char* workstation;
        const char* server;
    } names[] = {{"Windows Vista ", "Windows Server 2008 "},
                 {"Windows 7 ", "Windows Server 2008 R2 "},
                 {"Windows 8 ", "Windows Server 2012 "},
                 {"Windows 8.1 ", "Windows Server 2012 R2 "}};
    if (facts.minor >= std::size(names))
        return "Windows ";
    return IsWorkstation(facts) ? names[facts.minor].workstation : names[facts.minor].server;
}

// The release: a name and, from version 6 on, the version numbers.
CString ReleaseText(const WindowsFacts& facts)
{
    CString text;
    if (facts.major == 5)
        return Version5Name(facts);
    if (facts.major == 6)
        text = Version6Name(facts);
    else if (facts.major == 10)
        text = facts.registryName.value_or("Windows ") + " " + facts.releaseId;
    else
        text = "Windows";
    text.AppendFormat(" Version %u.%u.%u ", facts.major, facts.minor, facts.build);
    return text;
}

const char* EditionName(unsigned edition)
{
    switch (edition)
    {
    case 1:
    case 28:
    case 71: return "Ultimate Edition";
    case 2:
    case 67: return "Home Basic Edition";
    case 3:
    case 26:
    case 68: return "Home Premium Edition";
    case 4:
    case 10:
    case 27:
    case 70:
    case 125:
    case 126: return "Enterprise Edition";
    case 6:
    case 16: return "Business Edition";
    case 7: return "Standard Edition";
    case 8: return "Datacenter Edition";
    case 9: return "Small Business Server";
    case 11:
    case 47:
    case 66: return "Starter Edition";
    case 12: return "Datacenter Edition (core installation)";
    case 13: return "Standard Edition (core installation)";
    case 14: return "Enterprise Edition (core installation)";
    case 15: return "Enterprise Edition for Itanium-based Systems";
    case 17: return "Web Server Edition";
    case 18: return "Cluster Server Edition";
    case 25: return "Small Business Server Premium Edition";
    case 29: return "Web Server Edition (core installation)";
    case 48:
    case 49:
    case 69: return "Professional";
    case 98:
    case 101: return "Home Edition";
    default: return "";
    }
}

const char* BitsText(unsigned architecture)
{
    switch (architecture)
    {
    case architectureAmd64: return ", 64-bit";
    case architectureIntel: return ", 32-bit";
    default: return "";
    }
}

// The record's first part.
CString ProductVersion(const CString& kernelVersion)
{
    const int end = kernelVersion.Find(';');
    return end < 0 ? kernelVersion : kernelVersion.Left(end);
}

} // namespace

CString WindowsNameLine(const WindowsFacts& facts)
{
    if (facts.platform != platformNt || facts.major < 5)
        return "";

    // The edition follows without another blank: the version numbers end in one, and older releases have none.
    CString line = "Microsoft " + ReleaseText(facts) + EditionName(facts.edition);
    if (!facts.servicePack.IsEmpty())
        line += " " + facts.servicePack;
    line.AppendFormat(" (build %u)", facts.build);
    line += BitsText(facts.architecture);
    line += " (Kernel " + ProductVersion(facts.kernelVersion) + ") ";
    return line;
}
