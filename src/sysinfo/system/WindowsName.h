// The report's first long line: the name of the Windows release and edition.
//
// It is put together from version numbers, since no single text of the platform is right on every release from
// Windows 2000 on.
#pragma once

#include <afx.h>

#include <optional>

struct WindowsFacts
{
    // The values for a Windows that does not report its version.
    unsigned platform = 2;
    unsigned major = 10;
    unsigned minor = 0;
    unsigned build = 0;
    unsigned productType = 0;
    unsigned suite = 0;
    CString servicePack;
    unsigned architecture = 0;
    bool isServerR2 = false;
    unsigned edition = 0;                // the product number, 0 when Windows has none
    std::optional<CString> registryName; // asked for from version 10 on
    CString releaseId;
    CString kernelVersion; // the record of the kernel library, its product version in front
};

WindowsFacts ReadWindowsFacts();

// Empty for a system older than Windows 2000.
CString WindowsNameLine(const WindowsFacts& facts);
