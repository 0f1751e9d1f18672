// Tables of cases: a text, and what a function makes of it.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

struct TextCase
{
    std::string given;
    std::string made;
};

template <class Function>
void ExpectEach(Function function, std::initializer_list<TextCase> cases)
{
    for (const TextCase& each : cases)
        EXPECT_EQ(function(each.given), each.made) << "of " << each.given;
}

// The same where every text gives the same.
template <class Function>
void ExpectAll(Function function, const std::string& made, std::initializer_list<std::string> texts)
{
    for (const std::string& given : texts)
        EXPECT_EQ(function(given), made) << "of " << given;
}
