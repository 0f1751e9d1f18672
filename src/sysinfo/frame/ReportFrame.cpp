#include "sysinfo/frame/ReportFrame.h"

#include <cerrno>

std::vector<CString> SearchDirectories(const CString& path, const CString& installDirectory)
{
    CString installed = installDirectory;
    if (installed.Right(1) == "\\")
        installed = installed.Left(installed.GetLength() - 1);
    installed.MakeLower();
    CString rest = path;
    rest.MakeLower();
    if (rest.Find(installed) < 0)
        rest += ";" + installed;

    std::vector<CString> directories;
    while (!rest.IsEmpty())
    {
        const int end = rest.Find(';');
        const bool isLast = end <= 0;
        directories.push_back(isLast ? rest : rest.Left(end));
        rest = isLast ? CString() : rest.Mid(end + 1);
    }
    return directories;
}

CString IniAccessLine(int error, const CString& iniFile)
{
    switch (error)
    {
    case EACCES: return "Error: Access denied: " + iniFile;
    case ENOENT: return "Error: File name or path not found: " + iniFile;
    default: return "Internal Error checking LYT.INI: " + iniFile;
    }
}

std::vector<CString> VersionTexts(const CString& versions)
{
    constexpr int joinLength = 2;
    std::vector<CString> texts;
    CString rest = versions;
    while (!rest.IsEmpty())
    {
        const int end = rest.Find(';');
        texts.push_back(end < 0 ? rest : rest.Left(end));
        rest = end < 0 ? CString() : rest.Mid(end + joinLength);
    }
    return texts;
}

CString CannotOpenText(const CString& key)
{
    return "Cannot open registry key " + key;
}

CString UnsupportedVersionText()
{
    return CannotOpenText("unsupported version");
}

CString OfficeKey(int n, const char* key)
{
    CString name;
    name.Format(R"(Software\Microsoft\Office\%d.0\%s)", n, key);
    return name;
}
