// The word processor in use.
#pragma once

#include <afx.h>

#include <optional>

struct WordCurrentFacts
{
    std::optional<CString> program;     // what the current version is registered as; none when that cannot be read
    std::optional<unsigned> binaryKind; // of the program file, asked for from version 14 on
};

WordCurrentFacts ReadWordCurrentFacts();

// The version: the last piece between dots of the registered name, with ".0" after it.
CString WordVersionOf(const CString& program);
// True for a version that exists with 32 and with 64 bits.
bool HasBits(const CString& version);
// Empty when nothing is registered.
CString WordCurrentText(const WordCurrentFacts& facts);
