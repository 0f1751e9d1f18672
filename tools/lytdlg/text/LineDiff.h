// What changed between two texts with the same number of lines.
#pragma once

#include <string>

namespace lytdlg
{

// A unified diff with three lines around each change, byte for byte; empty for equal texts.
std::string LineDiff(const std::string& name, const std::string& before, const std::string& after);

} // namespace lytdlg
