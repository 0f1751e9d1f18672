// A library file with its tables and nothing to run, byte by byte. Windows can load it.
#pragma once

#include <string>
#include <vector>

inline constexpr unsigned machine64 = 0x8664;
inline constexpr unsigned machine32 = 0x14C;

std::string LibraryFile(const std::vector<std::string>& functions, unsigned machine = machine64,
                        const std::vector<std::string>& needed = {});
