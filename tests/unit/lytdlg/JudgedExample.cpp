#include "JudgedExample.h"

#include "ExampleFindings.h"

#include <gtest/gtest.h>

std::string TextsOfFindings(const std::string& lines, const std::vector<std::string>& partners)
{
    return lytdlg::FindIn(lines, nullptr, partners).text;
}

void ExpectFindings(std::initializer_list<JudgedLines> examples)
{
    for (const JudgedLines& example : examples)
        EXPECT_EQ(TextsOfFindings(example.lines), example.findings) << example.lines;
}

void ExpectNoFindings(std::initializer_list<const char*> examples)
{
    for (const char* lines : examples)
        EXPECT_EQ(TextsOfFindings(lines), "") << lines;
}
