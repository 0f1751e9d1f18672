// Paths of the system, with `\` between folders, as this machine writes them.
#pragma once

#include <algorithm>
#include <string>

inline std::string NativePath(const char* path)
{
    std::string native(path != nullptr ? path : "");
    std::ranges::replace(native, '\\', '/');
    return native;
}
