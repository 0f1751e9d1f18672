#include "sysinfo/frame/Report.h"

#include "base/PartnerLibrary.h"
#include "base/Words.h"
#include "environment/ClytEnvironment.h"
#include "sysinfo/frame/FileSearch.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/ReportFrame.h"

namespace
{

constexpr int readAccess = 4;

// An empty variable reads as one that is not set: the platform gives the same answer.
CString EnvironmentValue(const char* name)
{
    char probe = '\0';
    const DWORD size = GetEnvironmentVariableA(name, &probe, sizeof probe);
    if (size == 0)
        return "Value not set.";
    CString value;
    GetEnvironmentVariableA(name, value.GetBuffer(static_cast<int>(size)), size);
    value.ReleaseBuffer();
    return value;
}

CString NameFrom(BOOL WINAPI getName(char* name, DWORD* size))
{
    char name[128] = "";
    DWORD size = sizeof name;
    getName(name, &size);
    return name;
}

void AddWorkstation()
{
    AddReportLine("PATH    :" + EnvironmentValue("PATH"));
    AddReportLine("TEMP    :" + EnvironmentValue("TEMP"));
    AddReportLine("TMP     :" + EnvironmentValue("TMP"));
    AddReportLine("COMPUTERNAME:" + NameFrom(GetComputerNameA));
    AddReportLine("USERNAME:" + NameFrom(GetUserNameA));
    AddReportLine(lytProbeScreen());
}

void LocateConfiguration()
{
    constexpr DWORD pathSize = 80;
    const RegistryKey key(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\shell\\open\\IniPath");
    CString path;
    if (key.IsOpen() && key.ReadWholeText(nullptr, pathSize, path))
        lytEnvironment.SetInitPath(WithSeparator(path));
}

void AddResourceFiles()
{
    AddReportLine("File Information:");
    for (const CString& directory : SearchDirectories(EnvironmentValue("PATH"), lytInstallDirectory()))
        lytListFiles(directory, "LytRes*.dll", 0);

    const CString iniFile = lytEnvironment.GetIniFileName();
    if (const int error = lytAccessError(iniFile, readAccess); error != 0)
        AddReportLine(IniAccessLine(error, iniFile));
}

void AddVersions()
{
    AddReportLine("LYT Resolve Version            : " + lytProbeResolveVersion());
    AddReportLine("GUI-HOME                       : " + lytEnvironment.GetIniValue("paths", "GUI-HOME"));
    AddReportLine("Word Versions                  : " + lytProbeWordVersions());
    AddReportLine("Word Version Used By LYT Server: " + lytProbeWordCurrent());

    const ClickToRunFacts office = lytProbeClickToRun();
    lytEnvironment.lytOfficeRelease = office.releaseIds;
    lytEnvironment.lytOfficeVersion = office.version;
    if (!office.version.IsEmpty())
        AddReportLine("Office Version                 : " + office.releaseIds + " " + office.version);
}

void AddRegistrySettings()
{
    AddReportLine("LYT Registry Settings :");
    lytDumpRegistry("LYTDOCUMENT", HKEY_CLASSES_ROOT);
    lytDumpRegistry("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYT", HKEY_LOCAL_MACHINE);
    lytDumpRegistry("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTEXEC.EXE", HKEY_LOCAL_MACHINE);
    lytDumpRegistry("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTEXE32.EXE", HKEY_LOCAL_MACHINE);
    lytDumpRegistry("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTEXE64.EXE", HKEY_LOCAL_MACHINE);
    lytDumpRegistry("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTLABEL.EXE", HKEY_LOCAL_MACHINE);
    // The root's name is inside the key too, so this one never exists. Reports have always said so.
    lytDumpRegistry("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.LYT",
                    HKEY_CURRENT_USER);
}

bool HoldsTemplate(const CString& directory)
{
    WIN32_FIND_DATAA found;
    return lytFindFirst(directory + "lyt.dot", found).IsOpen();
}

// The blocks of the versions look for the configuration while they list: the template of the version in use settles it.
class VersionBlocks
{
public:
    void Add(const CString& version)
    {
        const int n = lytNumberOf(version);
        const CString head = "Word " + version;

        const CString user = AddDirectory(head + " User Template Dir     : ", lytProbeUserTemplates(n));
        if (IsFoundIn(user))
        {
            lytEnvironment.SetInitPath(user);
            SettleBy(version);
        }
        // A workgroup's template ends the search without moving the configuration there.
        const CString workgroup = AddDirectory(head + " Workgroup Template Dir: ", lytProbeWorkgroupTemplates(n));
        if (IsFoundIn(workgroup))
            SettleBy(version);

        AddReportLine(head + " Autostart Dir         : " + lytProbeStartup(n));
        AddReportLine(head + " Macro Security        : " + lytProbeMacroSecurity(n));
    }

private:
    // Adds the line and the directory's files; returns the directory as it is searched. A probe's words for a failure
    // pass as a directory in which nothing is found.
    static CString AddDirectory(const CString& label, const CString& directory)
    {
        AddReportLine(label + directory);
        if (directory.IsEmpty())
            return directory;
        const CString searched = WithSeparator(directory);
        lytListFiles(searched, "lyt*.*", 0);
        return searched;
    }
    bool IsFoundIn(const CString& directory) const
    {
        return !m_isSettled && !directory.IsEmpty() && HoldsTemplate(directory);
    }
    void SettleBy(const CString& version) { m_isSettled = version == lytEnvironment.lytWordCurrent; }

    bool m_isSettled = false;
};

void AddVersionBlocks()
{
    VersionBlocks blocks;
    for (const CString& version : VersionTexts(lytEnvironment.lytWordVersions))
        blocks.Add(version);
}

} // namespace

// People compare reports line by line: a new probe gets one call at one place here, and nothing else moves.
int lytGatherReport(const char* directory)
{
    const CSingleLock lock(&lytReportLock, true);
    // A drive without a disk, or a broken printer driver, is noted in the report and not in a message box.
    const ClytErrorBoxesOff noBoxes;
    lytEnvironment.lytReportLines.RemoveAll();

    AddReportLine(lytProgramKind());
    lytProbeHardware();
    lytProbePrinters();
    AddWorkstation();
    LocateConfiguration();
    AddResourceFiles();
    AddVersions();
    AddRegistrySettings();
    AddVersionBlocks();
    AddReportLine(CString("LYT Directory Tree (") + directory + ")");
    lytCheckDirectory(directory);
    lytShowShellCommand("printto");
    lytShowShellCommand("print");
    lytShowIniSection("Convert");
    lytShowIniSection("Printers");
    lytProbeFonts();
    lytProbeLocale();
    AddReportLine("Office enabled languages:");
    lytProbeEnabledLanguages();
    return 1;
}
