// What the host process is, when it is the information program of the system.
#pragma once

#include <afx.h>

#include <optional>

struct ProgramKindFacts
{
    bool hasServer = false;             // the server's program can be read beside the library
    std::optional<unsigned> binaryKind; // of the server's program, or else of the host's
};

// True for the file name, in lower case, of a program that tells its kind.
bool TellsItsKind(const CString& hostFile);

CString ProgramKindText(const ProgramKindFacts& facts);
