// A library file with an export table and nothing to run, byte by byte.
#pragma once

#include <string>
#include <vector>

inline constexpr unsigned machine64 = 0x8664;
inline constexpr unsigned machine32 = 0x14C;

std::string LibraryFile(const std::vector<std::string>& functions, unsigned machine = machine64);
