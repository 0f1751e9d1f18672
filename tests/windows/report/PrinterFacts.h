// Printers that a test lays into its prefix.
#pragma once

#include <windows.h>
#include <winspool.h>

#include <string>

// The default printer of the user's profile, back as it was when the object dies. Null takes it away.
class DefaultPrinter
{
public:
    explicit DefaultPrinter(const char* device);
    DefaultPrinter(const DefaultPrinter&) = delete;
    DefaultPrinter& operator=(const DefaultPrinter&) = delete;
    ~DefaultPrinter();

private:
    char m_before[256] = "";
};

// A local printer on LPT1: with the driver "LYT Test Driver"; goes with the object.
class LocalPrinter
{
public:
    LocalPrinter(std::string name, DEVMODEA mode);
    LocalPrinter(const LocalPrinter&) = delete;
    LocalPrinter& operator=(const LocalPrinter&) = delete;
    ~LocalPrinter();

private:
    std::string m_name;
    HANDLE m_handle;
};

// A mode that holds the fields named, all of them 0.
DEVMODEA PrinterMode(DWORD fields);
