// What the rest of a description says about a separator or a limit: of two that do not fit, the one that is alone is wrong.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

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
// Whether the gap closes a bracket that the text before it has opened.
bool ClosesBracket(const std::string& before, const std::string& gap);

} // namespace lytdlg
