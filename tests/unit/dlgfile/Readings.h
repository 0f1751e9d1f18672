// readings.cases: what each function of the tests makes of a text. Below the function's name in square brackets, a line is
// `text => what it makes of it`, with \n, \t and so on; a text alone gives the same as the next. A comment begins with #.
#pragma once

#include "support/Cases.h"

#include <vector>

std::vector<TextCase> ReadingsOf(const std::string& function);

template <class Function>
void ExpectReadings(Function function, const std::string& name)
{
    const std::vector<TextCase> cases = ReadingsOf(name);
    EXPECT_FALSE(cases.empty()) << "of " << name;
    for (const TextCase& each : cases)
        EXPECT_EQ(function(each.given), each.made) << "of " << each.given;
}
