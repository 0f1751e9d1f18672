// A report without the names of people and machines.
#pragma once

#include "lytcall/ReportText.h"

#include <cstddef>
#include <string>

namespace lytcall
{

// Replaces the name of the user by USER and of the machine by MACHINE. The names of servers, domains and other users' folders
// become SERVER1, DOMAIN1, USER1 ..., and addresses likewise, each as a whole word, in capitals or not. The same
// name is replaced by the same word. Values that are secrets by their names become REMOVED. Names are learnt from the lines
// themselves and from the other lines that are given. All lines are in UTF-8.
ReportLines Redacted(ReportLines lines, const ReportLines& told = {});

// The line of a report with REMOVED in place of each value whose name speaks of a key, a password, a licence, a serial
// number or an owner.
std::string WithoutSecrets(const std::string& line);

// Bytes beyond ASCII belong to letters.
bool IsLetterOrDigit(char c);
// Letters, digits, and what else may be in the name of a machine or a user.
bool IsPartOfName(char c);

// The text at a place, as far as it has such a shape.
struct FoundShape
{
    const char* word = nullptr; // that replaces it; null for any other shape
    size_t length = 0;
};
// The text is in small letters, and no letter or digit is before the place.
FoundShape ShapeAt(const std::string& small, size_t place);

} // namespace lytcall
