// A description that is opened without a modal run, and used: its controls are entered into, a text is scanned and its
// results are composed.
#pragma once

#include <string>

// The input is what the dialog scans when it opens.
void UseForm(const std::string& description, const std::string& input);
