#include "commandline/Finish.h"

#include <algorithm>
#include <cstdio>

namespace commandline
{

int Finish(const char* program, int code)
{
    // A write that failed before is remembered by the stream alone.
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return code;
    std::fprintf(stderr, "%s: what was printed could not be written whole; is the disk full, or the output closed?\n",
                 program);
    return std::max(code, 1);
}

} // namespace commandline
