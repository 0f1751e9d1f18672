// The variants of the test's data source, each with other functions: `complete`, `without-next` and so on.
#pragma once

#include <windows.h>

#include <string>

// Makes a variant the library `lytsrc`, until it is taken away.
HMODULE LoadTestSource(const std::string& variant);
void TakeTestSourceAway();
