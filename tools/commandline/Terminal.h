// Whether somebody looks at what a tool prints.
#pragma once

#include <cstdio>

namespace commandline
{

// True when the stream is a terminal that takes colours; NO_COLOR in the environment says that none are wanted.
bool IsTerminal(std::FILE* stream);

} // namespace commandline
