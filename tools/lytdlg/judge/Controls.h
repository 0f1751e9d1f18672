// What the controls of a description are and what they can hold, as far as the description tells.
#pragma once

#include "lytdlg/judge/Names.h"

#include <optional>
#include <set>

namespace lytdlg
{

Kind KindOf(const ClytControlStatement& control);
// A list that stands open.
bool IsOpenList(Kind kind);
bool AddsItems(const ClytControlFill& fill);
// Whether the piece of the input goes into the control.
bool TakesPiece(const ClytControlFill& fill);

std::vector<const ValueStatement*> StatementsOf(const Description& description, const std::string& name);
// Whether the control has a statement whose value is that option, as HIDDEN.
bool HasOption(const Description& description, const std::string& name, ClytOption option);
// Whether a rule, a button or an option may hide the control, or the group of an option.
bool MayBeHidden(const Description& description, const ClytControlStatement& control);
// The FILLEDBY statement of a control, the last one; null without one.
const ValueStatement* SourceOf(const Description& description, const std::string& name);
// The items that $VALUES gives to a list, in their order.
std::vector<const ValueStatement*> ItemsOf(const Description& description, const std::string& name);
// Whether a list gets items from elsewhere than $VALUES.
bool GetsItems(const Description& description, const std::string& name);
// The option buttons of a group.
std::vector<const ClytControlStatement*> OptionButtonsOf(const Description& description, const std::string& group);
// The values that the control can have beside the empty one; nothing when it can have any.
std::optional<std::set<std::string>> PossibleValues(const Description& description,
                                                    const ClytControlStatement& control);

} // namespace lytdlg
