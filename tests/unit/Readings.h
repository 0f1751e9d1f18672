// Files of cases: what each function of a test makes of a text. Below the function's name in square brackets, a line is
// `text => what it makes of it`, with \n, \t, \x0B and so on; a text alone gives the same as the next. A comment begins
// with #.
#pragma once

#include "support/Cases.h"

#include <vector>

std::vector<TextCase> ReadingsOf(const std::string& file, const std::string& function);
// The texts between the marks ~.
std::vector<std::string> ColumnsOf(const std::string& text);

template <class Function>
void ExpectReadings(const std::string& file, const std::string& name, Function function)
{
    const std::vector<TextCase> cases = ReadingsOf(file, name);
    EXPECT_FALSE(cases.empty()) << "of " << name;
    for (const TextCase& each : cases)
        EXPECT_EQ(function(each.given), each.made) << "of " << each.given;
}
