// What is wrong with a condition, whatever rule it belongs to.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

// Whether NULL stands for an empty value in a condition.
enum class NullMeans
{
    Empty,
    ItsLetters
};

// Tells of the values that the control of a condition can never have.
void JudgeValues(const Case& judged, const Rule& rule, const ClytCtrlValList& condition, NullMeans null);
// Tells of a control whose value does not change with what the user does. The place is that of its name.
void JudgeReadControl(const Case& judged, const Rule& rule, const std::string& name, const ClytSpan& place);

} // namespace lytdlg
