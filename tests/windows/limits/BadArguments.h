// Bad arguments of the exports: what each comes to.
#pragma once

#include "Exports.h"

#include <string>

// Calls the function with each bad value of each argument, and compares with what the page says.
void ProveBadArguments(Scene& scene, const Export& function);
// The table of the page.
std::string BadArgumentsTable();
