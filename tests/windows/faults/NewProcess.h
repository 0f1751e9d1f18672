// Work in a separate process, which begins in the state that this one is in.
#pragma once

#include <functional>
#include <string>

// Gives what the work gives. A process that dies of it fails the test.
std::string InNewProcess(const std::function<std::string()>& work);
