// Calls code of another module, which may have been made by any tool chain.
#pragma once

// Runs the step. What it raises that is not an exception of this tool chain, such as an access violation or an exception of
// another compiler's runtime, is raised as a std::runtime_error with its number; it would otherwise pass all handlers
// and end the process. Two pass: the overflow of the stack, since there is no room to continue, and the breakpoint of a
// process under a debugger.
//
// No destructor runs between the place where it was raised and here but that of an `Unwound` object.
void RunGuarded(void (*run)(void* step), void* step);
