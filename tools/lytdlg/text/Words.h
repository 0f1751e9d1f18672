// Words of a list, and marks in a text.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

std::string Joined(const std::vector<std::string>& words, const char* between = ", ");
// How often a mark stands in a text.
size_t CountOf(const std::string& text, const std::string& mark);
// The text without the blanks and tabs around it.
std::string Trimmed(const std::string& text);

} // namespace lytdlg
