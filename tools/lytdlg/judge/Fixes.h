// Fixes what is found, with the texts that the findings themselves propose.
#pragma once

#include "lytdlg/judge/Judge.h"

#include <map>

namespace lytdlg
{

enum class Fixing
{
    Nothing,
    Safe, // what cannot change what works
    All
};

bool IsFixed(const Finding& finding, Fixing fixing);

// The text with the fixes in it; of two that overlap, the first one. Lines keep their ends.
std::string WithFixes(const std::string& text, std::vector<Fix> fixes);

struct MendedText
{
    std::string text;
    size_t count = 0; // of the fixes in it
};

// The description fixed as far as its findings allow. A fix that does not help, or that leads to another finding, is not
// made.
MendedText MendDescription(const Description& description, const Surroundings& surroundings, Fixing fixing);

// Fixes in files that several descriptions share, each taken once.
class SharedFixes
{
public:
    explicit SharedFixes(Fixing fixing) : m_fixing(fixing) {}

    // Removes the findings that it fixes from the findings of a description.
    void TakeFrom(Findings& findings);
    // Each file with its fixes in it.
    std::map<std::string, MendedText> Mended() const;

private:
    bool HasLineOf(const Finding& finding);

    const Fixing m_fixing;
    std::map<std::string, std::vector<std::string>> m_lines; // by file
    std::map<std::string, std::vector<Fix>> m_fixes;         // by file
};

} // namespace lytdlg
