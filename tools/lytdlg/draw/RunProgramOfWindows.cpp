#include "lytdlg/draw/RunProgram.h"

#include <process.h>

namespace lytdlg
{

// The runtime joins the words with blanks; none of ours has a quote or ends in a backslash.
int RunProgram(const std::vector<std::string>& words)
{
    std::vector<std::string> quoted;
    for (const std::string& word : words)
        quoted.push_back('"' + word + '"');
    std::vector<const char*> arguments;
    for (const std::string& word : quoted)
        arguments.push_back(word.c_str());
    arguments.push_back(nullptr);
    return static_cast<int>(_spawnvp(_P_WAIT, words.front().c_str(), arguments.data()));
}

} // namespace lytdlg
