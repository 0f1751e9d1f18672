// The variants of the test's data source, each with other functions: `complete`, `without-next` and so on.
#pragma once

#include <windows.h>

#include <string>

// Makes a variant the library `lytsrc`.
HMODULE LoadTestSource(const std::string& variant);
// Takes the library under test and its data source away, although others still hold them.
void TakeLibrariesAway();
