// lytdlg: judges, tries, tests and draws dialog descriptions from a command line.
#include "lytdlg/Commands.h"

#include <windows.h>

int main(int count, char** words)
{
    SetConsoleOutputCP(CP_UTF8);
    return lytdlg::Run({words + 1, words + count});
}
