// The descriptions that a command line names.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

// Stands for a description on the standard input.
inline constexpr const char* standardInput = "-";

// The descriptions that an operand stands for: those of a folder in the order of their names, a file, or the standard
// input. A UsageError when there are none.
std::vector<std::string> DescriptionsAt(const std::string& operand);

} // namespace lytdlg
