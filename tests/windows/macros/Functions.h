// The functions that the language brings along, as far as our macros use them.
#pragma once

#include "LibraryCall.h"

#include <optional>
#include <string>

namespace macros
{

// The result of a function of the language; none when it has no function of that name.
std::optional<Value> CallFunction(const std::string& name, const Arguments& arguments);
// A constant of the language.
std::optional<Value> ConstantOf(const std::string& name);

} // namespace macros
