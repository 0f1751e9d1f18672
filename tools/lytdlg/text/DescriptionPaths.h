// The descriptions that a command line names.
#pragma once

#include "lytdlg/Commands.h"

#include <functional>
#include <string>
#include <vector>

namespace lytdlg
{

// Means a description on the standard input.
inline constexpr const char* standardInput = "-";

// The descriptions that an operand means: all of a folder and of those in it, in the order of their names, a file, or the
// standard input. A UsageError when there are none.
std::vector<std::string> DescriptionsAt(const std::string& operand);

// The files that such a name means. Throws std::runtime_error when it cannot be read.
std::string ReadDescription(const std::string& name);

// Does the same with every description that the operands name, and returns the worst exit code. What is raised for one
// of them is reported, and the others are still processed.
ExitCode ForEachDescription(const std::vector<std::string>& operands,
                            const std::function<ExitCode(const std::string& name)>& act);

} // namespace lytdlg
