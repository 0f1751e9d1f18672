#include "lytcall/Commands.h"
#include "lytcall/Session.h"

#include "commandline/Program.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace lytcall
{

int RunDoctor(const std::vector<std::string>& words)
{
    std::vector<std::string> all = {ProgramFolder() + "/lytdlg"};
    std::ranges::copy(words, std::back_inserter(all));
    std::ranges::transform(all, all.begin(), commandline::WordOfMain);
    std::fflush(stdout);
    const int code = commandline::RunProgram(all);
    if (code < 0)
        throw CallError("a deployment is judged by lytdlg, which is not in " + ProgramFolder() +
                        "; copy it there from the package");
    return code;
}

} // namespace lytcall
