#include "windows/PlainCalls.h"

#include <windows.h>
#include <winspool.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include <io.h>

namespace
{

char answer[4096];

void ReadDefaultValue(HKEY root, const char* key)
{
    HKEY opened = nullptr;
    if (RegOpenKeyA(root, key, &opened) != ERROR_SUCCESS)
        return;
    DWORD size = sizeof answer;
    RegQueryValueExA(opened, nullptr, nullptr, nullptr, reinterpret_cast<BYTE*>(answer), &size);
    RegCloseKey(opened);
}

void ReadInstallDirectory()
{
    ReadDefaultValue(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir");
    GetCurrentDirectoryA(sizeof answer, answer);
}

void ListFiles(const std::string& pattern)
{
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do
    {
        FILETIME local;
        SYSTEMTIME time;
        SYSTEMTIME shifted;
        FileTimeToLocalFileTime(&found.ftLastWriteTime, &local);
        FileTimeToSystemTime(&local, &time);
        SystemTimeToTzSpecificLocalTime(nullptr, &time, &shifted);
        std::tm parts = {};
        parts.tm_year = shifted.wYear - 1900;
        parts.tm_mon = shifted.wMonth - 1;
        parts.tm_mday = shifted.wDay;
        std::strftime(answer, 128, "%c", &parts);
    } while (FindNextFileA(search, &found));
    FindClose(search);
}

void ReadKernelVersion()
{
    const HMODULE kernel = LoadLibraryA("kernel32.dll");
    char path[MAX_PATH];
    GetModuleFileNameA(kernel, path, sizeof path);
    DWORD ignored = 0;
    std::vector<char> block(GetFileVersionInfoSizeA(path, &ignored));
    GetFileVersionInfoA(path, 0, static_cast<DWORD>(block.size()), block.data());
    void* value = nullptr;
    UINT length = 0;
    VerQueryValueA(block.data(), "\\VarFileInfo\\Translation", &value, &length);
    VerQueryValueA(block.data(), "\\StringFileInfo\\040904b0\\ProductVersion", &value, &length);
    VerQueryValueA(block.data(), "\\StringFileInfo\\040904b0\\FileVersion", &value, &length);
    const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    FILETIME written = {};
    FILETIME local = {};
    SYSTEMTIME time;
    GetFileTime(file, nullptr, nullptr, &written);
    FileTimeToLocalFileTime(&written, &local);
    FileTimeToSystemTime(&local, &time);
    CloseHandle(file);
    FreeLibrary(kernel);
}

void AskForTheMachine()
{
    GetModuleFileNameA(nullptr, answer, MAX_PATH);
    OSVERSIONINFOEXA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&version));
    SYSTEM_INFO system;
    GetNativeSystemInfo(&system);
    GetSystemMetrics(SM_SERVERR2);
    DWORD product = 0;
    GetProductInfo(version.dwMajorVersion, version.dwMinorVersion, 0, 0, &product);
    ReadKernelVersion();

    BOOL isWow64 = FALSE;
    IsWow64Process(GetCurrentProcess(), &isWow64);
    GetSystemInfo(&system);
    MEMORYSTATUSEX memory = {};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatusEx(&memory);
    HKEY processor = nullptr;
    RegOpenKeyA(HKEY_LOCAL_MACHINE, "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0", &processor);
    DWORD size = sizeof(DWORD);
    RegQueryValueExA(processor, "~MHz", nullptr, nullptr, reinterpret_cast<BYTE*>(answer), &size);
    size = 256;
    RegQueryValueExA(processor, "ProcessorNameString", nullptr, nullptr, reinterpret_cast<BYTE*>(answer), &size);
    RegCloseKey(processor);
    GetWindowsDirectoryA(answer, MAX_PATH);
    ReadInstallDirectory();
    ULARGE_INTEGER available;
    ULARGE_INTEGER total;
    GetDiskFreeSpaceExA("C:\\", &available, &total, nullptr);
    GetDiskFreeSpaceExA("Z:\\", &available, &total, nullptr);
}

void AskForPrinters()
{
    GetProfileStringA("windows", "device", "", answer, 256);
    for (const auto& [flags, level] : {std::pair<DWORD, DWORD>{PRINTER_ENUM_LOCAL, 2}, {PRINTER_ENUM_CONNECTIONS, 4}})
    {
        DWORD size = 0;
        DWORD count = 0;
        EnumPrintersA(flags, nullptr, level, reinterpret_cast<BYTE*>(answer), 1, &size, &count);
        std::vector<BYTE> records(size + 1);
        EnumPrintersA(flags, nullptr, level, records.data(), size, &size, &count);
    }
}

std::string EnvironmentValue(const char* name)
{
    GetEnvironmentVariableA(name, answer, 1);
    GetEnvironmentVariableA(name, answer, sizeof answer);
    return answer;
}

void AskForTheWorkstation()
{
    EnvironmentValue("PATH");
    EnvironmentValue("TEMP");
    EnvironmentValue("TMP");
    DWORD size = 128;
    GetComputerNameA(answer, &size);
    size = 128;
    GetUserNameA(answer, &size);
    GetSystemMetrics(SM_CXSCREEN);
    GetSystemMetrics(SM_CYSCREEN);
    ReadDefaultValue(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\shell\\open\\IniPath");
}

void AskForFilesAndVersions(const char* iniFile)
{
    ReadInstallDirectory();
    std::string path = EnvironmentValue("PATH") + ";" + answer;
    for (size_t end = path.find(';'); !path.empty(); end = path.find(';'))
    {
        ListFiles(path.substr(0, end) + "\\LytRes*.dll");
        path.erase(0, end == std::string::npos ? end : end + 1);
    }
    _access_s(iniFile, 4);
    FreeLibrary(LoadLibraryA("LytRes64.dll"));
    GetPrivateProfileStringA("paths", "GUI-HOME", "", answer, 1024, iniFile);
    ReadDefaultValue(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word");
    ReadDefaultValue(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Office");
    ReadDefaultValue(HKEY_CLASSES_ROOT, "Word.Application\\CurVer");
    ReadDefaultValue(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration");
    ReadDefaultValue(HKEY_CLASSES_ROOT, "LYTDOCUMENT");
    for (const char* program : {"LYT", "LYTEXEC.EXE", "LYTEXE32.EXE", "LYTEXE64.EXE", "LYTLABEL.EXE"})
        ReadDefaultValue(HKEY_LOCAL_MACHINE,
                         (std::string("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\") + program).c_str());
    ReadDefaultValue(HKEY_CURRENT_USER,
                     "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.LYT");
}

void ReadSection(const char* section, const char* iniFile)
{
    GetPrivateProfileSectionA(section, answer, 3, iniFile);
    GetPrivateProfileSectionA(section, answer, 2048, iniFile);
}

int CALLBACK KeepNothing(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/, DWORD /*type*/, LPARAM /*list*/)
{
    return 1;
}

void AskForFonts(const char* iniFile, const wchar_t* const* fonts)
{
    static const HDC screen = GetDC(nullptr);
    ReadSection("FONTS", iniFile);
    for (; *fonts != nullptr; ++fonts)
    {
        LOGFONTW wanted = {};
        wanted.lfCharSet = DEFAULT_CHARSET;
        wcsncpy(wanted.lfFaceName, *fonts, LF_FACESIZE - 1);
        EnumFontFamiliesExW(screen, &wanted, KeepNothing, 0, 0);
    }
}

void AskForLanguages()
{
    for (const LCTYPE type : {4100, 11})
    {
        GetLocaleInfoA(LOCALE_SYSTEM_DEFAULT, type, nullptr, 0);
        GetLocaleInfoA(LOCALE_SYSTEM_DEFAULT, type, answer, sizeof answer);
    }
    for (const LCTYPE type : {4100, 11, 2, 5, 10, 4114, 1, 7, 6, 4098, 4097, 90, 89, 8, 4})
    {
        GetLocaleInfoA(LOCALE_USER_DEFAULT, type, nullptr, 0);
        GetLocaleInfoA(LOCALE_USER_DEFAULT, type, answer, sizeof answer);
    }
    for (LGRPID group = 1; group <= 17; ++group)
        IsValidLanguageGroup(group, LGRPID_INSTALLED);
}

} // namespace

void MakePlainCalls(const char* directory, const char* iniFile, const wchar_t* const* fonts)
{
    // Every call of the library looks for its companion first.
    FreeLibrary(LoadLibraryA("lyt"));
    AskForTheMachine();
    AskForPrinters();
    AskForTheWorkstation();
    AskForFilesAndVersions(iniFile);
    _access(directory, 6);
    ListFiles(std::string(directory) + "\\*.*");
    ReadDefaultValue(HKEY_CLASSES_ROOT, ".pdf");
    ReadDefaultValue(HKEY_CLASSES_ROOT, ".pdf");
    ReadSection("Convert", iniFile);
    ReadSection("Printers", iniFile);
    AskForFonts(iniFile, fonts);
    AskForLanguages();
}
