// Takes the place of the message box in programs without a window: messages are kept, in order, for the test to look at.
#pragma once

#include <string>
#include <vector>

// The messages shown since the last call; forgets them.
std::vector<std::string> TakeMessages();
