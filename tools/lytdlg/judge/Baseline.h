// Findings that are known: a file of them, a line each, that a later check omits. A line number would not survive the
// next change of the description, so a finding is known by its rule, its file and the text of its line.
#pragma once

#include "lytdlg/judge/Judge.h"

#include <map>

namespace lytdlg
{

class Baseline
{
public:
    Baseline() = default;
    // Reads such a file; a file that cannot be read or does not have the form is a UsageError.
    explicit Baseline(const std::string& path);

    // Takes the known findings away, each as often as the file tells it.
    void Subtract(const Description& description, Findings& findings);
    // Notes findings as known.
    void Add(const Description& description, const Findings& findings);
    void Write(const std::string& path) const;

private:
    std::map<std::string, int> m_known; // a line of the file, and how often it is there
};

} // namespace lytdlg
