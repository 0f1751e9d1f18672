// A program that runs to its end, with all that it prints.
#pragma once

#include <string>

struct ChildEnd
{
    int code = -1; // negative when it did not start, or was ended after its time
    std::string output;
};

// In a folder. After so many seconds it is ended, with all that it has started.
ChildEnd RunChild(std::string command, const std::string& folder, unsigned seconds);
