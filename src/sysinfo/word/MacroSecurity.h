// How a version of the word processor guards against macros.
#pragma once

#include <afx.h>

#include <vector>

struct MacroSecurityFacts
{
    int n = 0;                  // the version
    bool isKeyOpen = false;     // the key that MacroSecurityKey names
    unsigned level = 0;         // 0 when it cannot be read
    CString installDirectory;   // ours, ending in `\`
    std::vector<CString> paths; // of the trusted locations
};

MacroSecurityFacts ReadMacroSecurityFacts(int n);

// Versions 9 to 11 have a level, later ones a list of trusted locations, others neither.
bool HasSecurityLevel(int n);
bool HasTrustedLocations(int n);
// Below the user's own keys; empty for a version that has neither.
CString MacroSecurityKey(int n);

CString MacroSecurityText(const MacroSecurityFacts& facts);
