// The operations of the report's probes. Those that return nothing append their lines to the report; no probe fails: each
// has its words for what it cannot read, or leaves its line out.
#pragma once

#include <afx.h>

#include <windows.h>

// Windows and the machine.
CString lytProbeWindowsName();
void lytProbeHardware();
CString lytProbeScreen();
void lytProbePrinters();
void lytProbeFonts();
void lytProbeLocale();

// The word processor and its office package. `n` is the integer form of a version text.
struct ClickToRunFacts
{
    CString version;
    CString releaseIds;
    bool isSubscription = false;
};
CString lytProbeWordVersions();
CString lytProbeWordCurrent();
ClickToRunFacts lytProbeClickToRun();
CString lytProbeUserTemplates(int n);
CString lytProbeWorkgroupTemplates(int n);
CString lytProbeStartup(int n);
CString lytProbeMacroSecurity(int n);
void lytProbeEnabledLanguages();
CString lytProbeResolveVersion();
CString lytProbeKernelVersion();

// Files, the registry and `lyt.ini`.
void lytListFiles(const CString& directory, const CString& mask, int recursive);
void lytCheckDirectory(const CString& directory);
void lytShowShellCommand(const char* verb);
void lytDumpRegistry(const char* key, HKEY root);
void lytShowIniSection(const char* section);
CString lytProgramKind();
CString lytInstallDirectory();
