// Whether a program has 32 or 64 bits.
#pragma once

#include <afx.h>

#include <optional>

// What the platform calls a 64-bit program.
inline constexpr unsigned lytBinary64 = 6;

// What the platform takes the file for; nothing when it is no program.
std::optional<unsigned> BinaryKindOf(const CString& fileName);

// What stands behind the name of a program of that kind; empty when the kind is not known.
CString BitsText(const std::optional<unsigned>& binaryKind);
