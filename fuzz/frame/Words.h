// The dictionary of the fuzzers, in libFuzzer's form.
#pragma once

#include <string>

std::string Dictionary();
