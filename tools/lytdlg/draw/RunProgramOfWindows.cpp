#include "lytdlg/draw/RunProgram.h"

#include "lytdlg/text/Paths.h"

#include <filesystem>

#include <process.h>

namespace lytdlg
{

// The runtime joins the words with blanks; none of ours has a quote or ends in a backslash.
int RunProgram(const std::vector<std::string>& words)
{
    std::vector<std::wstring> quoted;
    for (const std::string& word : words)
        quoted.push_back(L'"' + PathOf(word).wstring() + L'"');
    std::vector<const wchar_t*> arguments;
    for (const std::wstring& word : quoted)
        arguments.push_back(word.c_str());
    arguments.push_back(nullptr);
    const std::filesystem::path program = PathOf(words.front());
    return static_cast<int>(_wspawnvp(_P_WAIT, program.c_str(), arguments.data()));
}

} // namespace lytdlg
