// A log as its reader sees it: block after block.
#pragma once

#include <string>
#include <vector>

struct LogBlocks
{
    // Takes a log apart.
    explicit LogBlocks(const std::string& log);

    std::vector<std::string> messages; // of the whole blocks
    std::string rest;                  // what follows them and is no whole block
};
