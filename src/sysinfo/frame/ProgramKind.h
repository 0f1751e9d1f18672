// Whether a program has 32 or 64 bits, and what the host process is, when it is the information program of the system.
#pragma once

#include <afx.h>

#include <optional>

// What the platform calls a 64-bit program.
inline constexpr unsigned lytBinary64 = 6;

// What the platform takes the file for; nothing when it is not a program.
std::optional<unsigned> BinaryKindOf(const CString& fileName);

// What follows the name of a program of that kind; empty when the kind is not known.
CString BitsText(const std::optional<unsigned>& binaryKind);

struct ProgramKindFacts
{
    bool hasServer = false;             // the server's program can be read beside the library
    std::optional<unsigned> binaryKind; // of the server's program, or else of the host's
};

// Whether the report states the kind of the host program, going by its file name in lower case.
bool TellsItsKind(const CString& hostFile);

CString ProgramKindText(const ProgramKindFacts& facts);
