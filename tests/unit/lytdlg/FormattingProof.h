// What formatting promises of any text at all: done twice it changes nothing more, and what the library reads stays the same
// under every choice of the defines, line for line.
#pragma once

#include <string>

// Empty when the promise holds, else what went wrong.
std::string BreachOfFormatting(const std::string& content);
