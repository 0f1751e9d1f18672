// The end of a tool.
#pragma once

namespace commandline
{

// What `main` gives back: the code, or 1 in place of 0 with an error line when not all of the standard output was written.
int Finish(const char* program, int code);

} // namespace commandline
