// What a tool has to do with its process and with others: how it ends, its standard streams, another program that it runs.
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace commandline
{

// What `main` gives back: the code, or 1 in place of 0 with an error line when not all of the standard output was written.
int Finish(const char* program, int code);

// True when the stream is a terminal that takes colours; NO_COLOR in the environment says that none are wanted.
bool IsTerminal(std::FILE* stream);

// The standard streams byte for byte, where a platform would translate line ends on the way.
std::string ReadStandardInput();
// To the standard output, after all that has been printed there.
void WriteBytes(const std::string& bytes);

// The words are in UTF-8. The first is the program, which is looked for as a shell does. Gives its exit code, or -1
// without one.
int RunProgram(const std::vector<std::string>& words);

// A word as a command line of Windows holds it; there only.
std::wstring QuotedWord(const std::wstring& word);

// A word that `main` was given, in UTF-8.
std::string WordOfMain(const std::string& word);

// How long is waited for what may never come: some ten times what it takes on an idle machine. LYT_PATIENCE in the
// environment is a factor for all such limits, of programs and scripts alike.
inline unsigned Patience(unsigned limit)
{
    const char* const factor = std::getenv("LYT_PATIENCE");
    return limit * static_cast<unsigned>(std::max(factor != nullptr ? std::atoi(factor) : 1, 1));
}

} // namespace commandline
