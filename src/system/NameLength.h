// The length of a name that reaches the platform: of a file, and of a section or a key in one.
#pragma once

#include <cstring>

// The platform keeps a name as 16-bit characters with a NUL, and counts their bytes in 16 bits. It would take the
// beginning of a longer one, which may well name something else, or read a name from memory that it never set. What has
// a longer name is missing, and callers that hand a name to the platform ask here first.
inline constexpr size_t longestName = 32'766;

inline bool NameFits(const char* name)
{
    return std::strlen(name) <= longestName;
}
