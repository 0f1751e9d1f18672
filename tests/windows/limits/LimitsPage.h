// docs/limits.md.
#pragma once

#include "Limit.h"

#include <string>
#include <vector>

// The page as the tables tell it, `arguments` being that of the exports.
std::string PageOf(const std::string& arguments, const std::vector<const LimitTable*>& tables);
