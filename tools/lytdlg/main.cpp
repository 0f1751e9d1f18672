// lytdlg: judges, tries, tests and draws dialog descriptions from a command line.
#include "commandline/Program.h"
#include "lytdlg/Commands.h"
#include "lytdlg/judge/LoadTrial.h"
#include "lytdlg/text/Paths.h"

#include <afxwin.h>

int main(int count, char** words)
{
    SetConsoleOutputCP(CP_UTF8);
    // The templates, icons and manifest of the library are in this program.
    AfxGetStaticModuleState()->m_hCurrentResourceHandle = GetModuleHandleA(nullptr);
    const std::vector<std::string> given = lytdlg::CommandLineWords(count, words);
    if (!given.empty() && given.front() == lytdlg::loadTrialWord)
        return lytdlg::CarryOutLoadTrial(given);
    return commandline::Finish("lytdlg", lytdlg::Run(given));
}
