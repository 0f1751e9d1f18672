// What a check prints: as text for people, as JSON or SARIF for programs.
#pragma once

#include "lytdlg/judge/Judge.h"

#include <memory>

namespace lytdlg
{

struct Counts
{
    int files = 0;
    int errors = 0;
    int warnings = 0;
    int notes = 0;
};

class Report
{
public:
    virtual ~Report() = default;

    // The findings on one description, in UTF-8.
    virtual void Add(const Description& description, const Findings& findings) = 0;
    virtual void End(const Counts& counts) = 0;
};

// Prints to standard output as it goes, with colours on a terminal.
std::unique_ptr<Report> MakeTextReport();
// A line for each finding, in the form that editors know from compilers.
std::unique_ptr<Report> MakeGccReport();
// Print once all is known.
std::unique_ptr<Report> MakeJsonReport();
std::unique_ptr<Report> MakeSarifReport();

// A finding as the text report prints it.
std::string TextOf(const Finding& finding, const Description& description, bool isColoured);

} // namespace lytdlg
