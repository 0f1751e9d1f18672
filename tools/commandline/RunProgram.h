// Runs another program and waits for it.
#pragma once

#include <string>
#include <vector>

namespace commandline
{

// The words are in UTF-8. The first is the program, which is looked for as a shell does. Gives its exit code; -1 when there
// is none.
int RunProgram(const std::vector<std::string>& words);

// A word as a command line of Windows holds it; there only.
std::wstring QuotedWord(const std::wstring& word);

// A word that `main` was given, in UTF-8.
std::string WordOfMain(const std::string& word);

} // namespace commandline
