// Conditions of all kinds of rules: what they ask, and what is wrong with them.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

// Whether the last value is NOTNULL, which decides alone.
bool AsksForContent(const ClytCtrlValList& condition);
// The values in brackets, with an empty text for NULL, and without a NOTNULL at the end.
std::vector<std::string> ValuesAskedBy(const ClytCtrlValList& condition);
// The conditions that, with those before them, leave a control no value to hold.
std::vector<const ClytCtrlValList*> Contradictions(const ClytOwnedList<ClytCtrlValList>& conditions);

// Whether the condition always holds: it names all values of a control that never is disabled, or none.
bool AlwaysHolds(const Description& description, const ClytCtrlValList& condition);

// Which words for a value mean something in the conditions of a section.
enum class ValueWords
{
    NullAndNotNull,
    Null,
    None
};

// Tells of the values that the control of a condition can never have.
void JudgeValues(const Case& judged, RuleName rule, const ClytCtrlValList& condition, ValueWords known);
// Tells of a control whose value does not change with what the user does. The place is that of its name.
void JudgeReadControl(const Case& judged, RuleName rule, const std::string& name, const ClytSpan& place);

} // namespace lytdlg
