#include "commandline/Terminal.h"

#include <cstdlib>
#include <io.h>

namespace commandline
{

bool IsTerminal(std::FILE* stream)
{
    const char* const refused = std::getenv("NO_COLOR");
    return (refused == nullptr || *refused == '\0') && _isatty(_fileno(stream)) != 0;
}

} // namespace commandline
