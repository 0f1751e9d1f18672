#include "sysinfo/frame/RegistryValue.h"

#include <algorithm>

CString TextOf(const RegistryValue& value)
{
    return value.data.c_str();
}

unsigned NumberOf(const RegistryValue& value)
{
    unsigned number = 0;
    for (size_t i = 0; i < std::min<size_t>(value.data.size(), 4); ++i)
        number |= static_cast<unsigned>(static_cast<unsigned char>(value.data[i])) << (8 * i);
    return number;
}
