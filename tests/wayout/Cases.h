// Dialogs whose rules fail in every way that an author or a partner may bring about, and what a user does in them. The same
// number gives the same case on every machine.
#pragma once

#include <string>
#include <vector>

// The acts are acts of robot::ActingUser; the last one leaves the dialogs.
struct Case
{
    std::string description;
    std::string nested; // what a button opens
    std::string input;
    std::string acts;
    std::string leaving;
};

// Descriptions to be changed, beside those that are made up.
Case CaseOf(unsigned number, const std::vector<std::string>& samples);
