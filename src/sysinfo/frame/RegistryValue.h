// One value of the registry, as the platform gave it.
#pragma once

#include <afx.h>

#include <string>

struct RegistryValue
{
    CString name; // empty for the default value
    unsigned type = 0;
    std::string data; // as long as reported; a text in it need not end with a NUL
};

// The data up to its first NUL.
CString TextOf(const RegistryValue& value);
// The first four bytes, lowest first; bytes that are missing count as 0.
unsigned NumberOf(const RegistryValue& value);
