// Keys of the registry with all that is below them.
#pragma once

#include "sysinfo/frame/RegistryValue.h"

// The types that a dump words. It calls 0, 5, 6, 7 and 8 unsupported, and shows no data for those above.
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
