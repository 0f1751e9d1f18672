// Every kind of words that a description knows, for tests that look at each.
#pragma once

#include "model/ClytWords.h"

#include <gtest/gtest.h>

using WordKinds = testing::Types<ClytState, ClytOption, ClytAction, ClytKeyword, ClytFillAction, ClytValueWord>;
