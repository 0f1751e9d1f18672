#include "lytdlg/serve/WaitingInput.h"

#include <windows.h>

namespace lytdlg
{

// A pipe, which is what editors give; a file always has something to read.
bool IsInputWaiting()
{
    DWORD count = 0;
    const BOOL isOpenPipe = PeekNamedPipe(GetStdHandle(STD_INPUT_HANDLE), nullptr, 0, nullptr, &count, nullptr);
    return isOpenPipe == FALSE || count > 0;
}

size_t ReadInput(char* buffer, size_t size)
{
    DWORD count = 0;
    const BOOL isRead = ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer, static_cast<DWORD>(size), &count, nullptr);
    return isRead != FALSE ? count : 0;
}

} // namespace lytdlg
