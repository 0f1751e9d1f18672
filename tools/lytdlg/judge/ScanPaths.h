// How the statements of an input part lead to one another.
#pragma once

#include "lytdlg/judge/Description.h"

#include <set>

namespace lytdlg
{

struct ScanTarget
{
    std::string name; // empty when the statement leads nowhere
    ClytSpan place;
};

// What may run after the statement, in the order of its line.
std::vector<ScanTarget> TargetsOf(const Description& description, const ClytDialogInput& statement);
// The statements that a run of the part may come to.
std::set<const ClytDialogInput*> Reached(const Description& description, const ClytInputPart& part);

// Statements that go round without cutting anything, from the first of them on.
struct ScanCircle
{
    std::vector<const ClytDialogInput*> statements;
    bool hasConditions = false; // what the controls hold decides whether it comes to that
    bool isAtEnd = false;       // only once the text has come to its end
};

std::vector<ScanCircle> CirclesOf(const Description& description, const ClytInputPart& part);

} // namespace lytdlg
