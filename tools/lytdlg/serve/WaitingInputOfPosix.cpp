#include "lytdlg/serve/WaitingInput.h"

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace lytdlg
{

bool IsInputWaiting()
{
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

size_t ReadInput(char* buffer, size_t size)
{
    ssize_t count = read(STDIN_FILENO, buffer, size);
    while (count < 0 && errno == EINTR)
        count = read(STDIN_FILENO, buffer, size);
    return count > 0 ? static_cast<size_t>(count) : 0;
}

} // namespace lytdlg
