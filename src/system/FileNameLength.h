// The length of a file's name that reaches the platform.
#pragma once

#include <cstring>

// The platform counts a name in 16 bits: of a longer one it would take the beginning, which may well be another file. A
// longer name is that of a missing file, and callers that hand a name to the platform ask here first.
inline constexpr size_t longestFileName = 32'767;

inline bool FileNameFits(const char* fileName)
{
    return std::strlen(fileName) <= longestFileName;
}
