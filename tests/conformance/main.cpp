// Acts on the class library over either kind of windows, and prints every message. The output over the windows of the
// platform and over those in memory is the same, line by line: `conformance FILE` works the stages of a transcript, which
// holds it, and with a title that stage alone. `generated FIRST END` works the sample dialogs by sequences of acts, of which
// generated.txt holds what the first come to; `generated NUMBER` shows one of them act by act. `meddled` does the same with
// a dialog whose states change meanwhile, and meddled.txt.
#include "Stage.h"
#include "Transcript.h"

#include <afxstat_.h>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace
{

void Work(const std::string& what, const std::string& first, const std::string& end)
{
    if (what == "generated" || what == "meddled")
    {
        const auto begin = static_cast<unsigned>(std::atoi(first.c_str()));
        const auto before = end.empty() ? begin + 1 : static_cast<unsigned>(std::atoi(end.c_str()));
        (what == "generated" ? Generated : Meddled)(begin, before, end.empty());
    }
    else
        WorkTranscript(what, first);
}

} // namespace

int main(int argc, char** argv)
{
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    *AfxGetStaticModuleState() = {module, module};
    try
    {
        Work(argc > 1 ? argv[1] : "", argc > 2 ? argv[2] : "", argc > 3 ? argv[3] : "");
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "conformance: %s\n", error.what());
        return 1;
    }
}
