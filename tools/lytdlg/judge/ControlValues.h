// What the statements of $VALUES make of a control, and the values that it may come to hold.
#pragma once

#include "lytdlg/judge/Names.h"
#include "model/ClytWords.h"

#include <optional>
#include <set>

namespace lytdlg
{

// What a control makes of a statement.
enum class Role
{
    Nothing, // it is ignored
    Option,  // HIDDEN and its like
    Default, // what the control begins with
    On,      // of a check box
    Off,
    OptionValue,
    Item,
    Source, // FILLEDBY
    DoubleClick,
    Action // of a button
};

Role RoleOf(Kind kind, const ValueStatement& statement);
// For the last control of the statement's name.
Role RoleOf(const Description& description, const ValueStatement& statement);

// Whether a value was meant as HIDDEN or its like, but is spelt differently.
bool IsMeantAsOption(const ValueStatement& statement);
bool HasOption(const Description& description, const std::string& name, ClytOption option);
// Whether a rule, a button or an option may hide the control, or the group of an option.
bool MayBeHidden(const Description& description, const ClytControlStatement& control);
// Whether a rule, a button or an option may disable the control.
bool MayBeDisabled(const Description& description, const std::string& name);

// The statements of a control that have a role, in their order.
const std::vector<const ValueStatement*>& StatementsOf(const Description& description, const std::string& name,
                                                       Role role);
// The last of them, which is the one that counts where a control has but one; null without any.
const ValueStatement* LastStatementOf(const Description& description, const std::string& name, Role role);

// Whether a line of $VALUES that cannot be read, or one for an unknown control, was meant for a control.
bool IsMeantElsewhere(const Description& description, const std::string& name);

// Whether a list gets items from a library or the input, and so may have some when the dialog opens.
bool GetsItemsOnOpening(const Description& description, const std::string& name);
// Whether a list gets items from elsewhere than $VALUES: in this way, or from a button.
bool GetsItems(const Description& description, const std::string& name);
// The values that the control can have; nothing when it can have any. A text that was never given is empty.
std::optional<std::set<std::string>> PossibleValues(const Description& description,
                                                    const ClytControlStatement& control);

} // namespace lytdlg
