// The version record of the system's kernel library.
#pragma once

#include <afx.h>

#include <array>
#include <optional>

struct KernelVersionFacts
{
    CString productVersion;
    std::optional<CString> fileVersion;   // the text; not every file has one
    std::array<int, 4> fixedNumbers = {}; // the version in figures
    CString path;
    CString date; // of the last write, as KernelDateText words it
};

// Nothing when any of it cannot be read.
std::optional<KernelVersionFacts> ReadKernelVersionFacts();

// A record's name begins with language and code page, which the translation holds the other way round.
unsigned LanguageAndCodePage(unsigned translation);
// The numbers of the file version, from its text where there is one.
std::array<int, 4> VersionNumbers(const KernelVersionFacts& facts);
CString KernelDateText(unsigned day, unsigned month, unsigned year, unsigned hour, unsigned minute);

CString KernelVersionText(const KernelVersionFacts& facts);
