// Keys of the registry with all that is below them.
#pragma once

#include "sysinfo/system/RegistryValue.h"

// The types that a dump words. 0, 5, 6, 7 and 8 it calls unsupported; of those above it knows nothing.
enum RegistryType : unsigned
{
    registryText = 1,
    registryExpandableText = 2,
    registryBinary = 3,
    registryNumber = 4,
    registryLastUnsupported = 8
};

CString MissingKeyLine(const CString& key);
// The line of a key without values.
CString EmptyKeyLine(const CString& key);
CString ValueLine(const CString& key, const RegistryValue& value);
