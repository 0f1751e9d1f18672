// Runs another program and waits for it.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

// The first word is the program, which is looked for as a shell does. Gives its exit code; -1 when there is none.
int RunProgram(const std::vector<std::string>& words);

} // namespace lytdlg
