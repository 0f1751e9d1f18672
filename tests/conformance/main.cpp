// Acts on the class library over either kind of windows, and prints every message. The output over the
// windows of the platform and over those in memory is the same, line by line: conformance.txt holds it. The name of a
// chapter runs that one alone. `generated FIRST END` works the sample dialogs by sequences of acts, of which generated.txt
// holds what the first come to; `generated NUMBER` shows one of them act by act. `meddled` does the same with a dialog
// whose states change meanwhile, and meddled.txt.
#include "Stage.h"

#include <afxstat_.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    struct Chapter
    {
        const char* name;
        void (*run)();
    };
    static constexpr Chapter chapters[] = {
        {"buttons", Buttons}, {"edits", Edits},     {"lists", Lists}, {"combos", Combos},       {"trees", Trees},
        {"dialogs", Dialogs}, {"endings", Endings}, {"keys", Keys},   {"measuring", Measuring},
    };
    struct Sequences
    {
        const char* name;
        void (*run)(unsigned begin, unsigned end, bool isShown);
    };
    static constexpr Sequences sequences[] = {{"generated", Generated}, {"meddled", Meddled}};
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    *AfxGetStaticModuleState() = {module, module};
    for (const Sequences& kind : sequences)
    {
        if (argc <= 2 || std::string(argv[1]) != kind.name)
            continue;
        const auto begin = static_cast<unsigned>(std::atoi(argv[2]));
        kind.run(begin, argc > 3 ? static_cast<unsigned>(std::atoi(argv[3])) : begin + 1, argc == 3);
        return 0;
    }
    for (const Chapter& chapter : chapters)
    {
        if (argc < 2 || std::string(argv[1]) == chapter.name)
            chapter.run();
    }
}
