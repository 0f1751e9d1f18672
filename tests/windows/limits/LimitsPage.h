// docs/limits.md.
#pragma once

#include "Limit.h"

#include <string>
#include <vector>

// The page as the tables tell it.
std::string PageOf(const std::vector<const LimitTable*>& tables);
