// What the travelling test tries, as scripts/make-selftest lists it.
//
//     == GROUP: TITLE        begins a case
//     $ COMMAND              its command line; HERE is the folder of the files
//       LINE                 a line that must come out, after two blanks
//     [CODE]                 what it must end with, unless that is 0
//     @ keep                 the output is kept and not compared
//     @ tests                a program of many tests, which counts them itself
#pragma once

#include <string>
#include <vector>

struct Case
{
    std::string group;
    std::string title;
    std::string command;
    std::vector<std::string> expected; // in UTF-8
    int code = 0;
    bool isKept = false;
    bool hasTests = false;
};

// Of these groups, or of all when there is none.
std::vector<Case> ReadCases(const std::string& text, const std::vector<std::string>& groups);
