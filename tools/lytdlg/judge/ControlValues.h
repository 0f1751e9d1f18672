// What the statements of $VALUES make of a control, and the values that it may come to hold.
#pragma once

#include "lytdlg/judge/Names.h"

#include <optional>

namespace lytdlg
{

// What a control makes of a statement.
enum class Role
{
    Nothing, // it is passed over
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

// HIDDEN and its like.
const std::vector<std::string>& OptionWords();
bool IsOptionWord(const std::string& word);
bool HasOption(const Description& description, const std::string& name, const std::string& word);

// The statements of a control that have a role, in their order.
std::vector<const ValueStatement*> StatementsOf(const Description& description, const std::string& name, Role role);
// The options of a group, in their order.
std::vector<std::string> OptionsOf(const Description& description, const std::string& group);
// The fills of all input parts that reach a control. They live as long as the description.
std::vector<const ClytControlFill*> FillsOf(const Description& description, const std::string& name);
// True when a library, a button or the input puts items into a list.
bool TakesItems(const Description& description, const std::string& name);
// All values that a control can hold; nothing when it may hold any, or none at all.
std::optional<std::vector<std::string>> PossibleValues(const Description& description, const std::string& name);

} // namespace lytdlg
