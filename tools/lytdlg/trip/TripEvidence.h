// What the rest of a description says about a separator or a limit: of two that do not fit, the one that is alone is wrong.
#pragma once

#include "lytdlg/trip/TripPlan.h"

namespace lytdlg
{

// The check of a control that counts; null without any.
const EvaluationStatement* LastCheckOf(const Description& description, const std::string& name);
// The rules that compose the dialog's result.
std::vector<const ClytDialogOutput*> RulesOfResult(const Description& description);
// What the formats of the result write after their items, up to the next one.
std::vector<std::string> GapsOf(const Description& description);
// Whether a gap begins with one of the separators.
bool IsWrittenAnywhere(const Description& description, const std::vector<std::string>& separators);
// Whether a CONCAT takes lists apart at the character.
bool IsSplitAnywhere(const Description& description, char separator);
// Whether an output joins a list with one of the characters.
bool IsJoinedAnywhere(const Description& description, const std::string& separators);
// Whether a rule of the result puts more characters of the item.
bool HasLargerLimit(const Description& description, const std::string& item, size_t limit);
// Whether a statement, or one that it jumps to, hands its piece to the control.
bool LeadsTo(const TripPlan& plan, const std::string& statement, const std::string& control);
// Whether a statement puts the fixed text into the control.
bool GivesValue(const TripPlan& plan, const std::string& statement, const std::string& control,
                const std::string& value);
// Whether the gap closes a bracket that the text before it has opened.
bool ClosesBracket(const std::string& before, const std::string& gap);

} // namespace lytdlg
