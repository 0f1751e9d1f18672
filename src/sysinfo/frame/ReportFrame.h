// Texts of the report itself, between the texts of the probes.
#pragma once

#include <afx.h>

#include <vector>

// The directories in which the resource library is looked for: the directories of `path`, and the installation directory when the
// path does not name it. All in lower case. An empty piece ends the walk: it and all that follows are one directory.
std::vector<CString> SearchDirectories(const CString& path, const CString& installDirectory);

// What keeps the configuration file from being read; `error` is an `errno` value.
CString IniAccessLine(int error, const CString& iniFile);

inline CString WithSeparator(const CString& directory)
{
    return directory.Right(1) == "\\" ? directory : directory + "\\";
}

// The texts that the list of versions joins by "; ".
std::vector<CString> VersionTexts(const CString& versions);

// In place of what a key would say: it cannot be opened, or the version has none.
CString CannotOpenText(const CString& key);
CString UnsupportedVersionText();
// A key of one version of the office package.
CString OfficeKey(int n, const char* key);
