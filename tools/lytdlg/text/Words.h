// Words of a list, marks in a text, and the name of a line.
#pragma once

#include "base/ClytSpan.h"

#include <string>
#include <vector>

namespace lytdlg
{

std::string Joined(const std::vector<std::string>& words, const char* between = ", ");
// How often a mark stands in a text.
size_t CountOf(const std::string& text, const std::string& mark);
// The text without the blanks and tabs around it.
std::string Trimmed(const std::string& text);
std::string LineText(const ClytSpan& place);

} // namespace lytdlg
