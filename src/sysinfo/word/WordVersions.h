// The word processors that a workstation has, by the keys that their set-ups made.
#pragma once

#include <afx.h>

#include <vector>

struct WordVersionsFacts
{
    // The subkeys of the word processor's own key and of the office package's, in the order of the registry.
    std::vector<CString> word;
    std::vector<CString> office;
};

WordVersionsFacts ReadWordVersionsFacts();

// All of the former, and the latter up to the first that does not begin with a digit, joined by "; ". A version under
// both keys is listed twice.
CString WordVersionsText(const WordVersionsFacts& facts);
