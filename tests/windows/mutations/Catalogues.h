// Catalogues as no source should deliver them: levels that jump, kinds that do not exist, texts of any bytes.
#pragma once

#include "support/Dice.h"

#include <lytsrc.h>

#include <vector>

// A catalogue of up to sixty entries in order.
std::vector<lytTreeRecord> WellFormedCatalogue(Dice& dice);
// One with up to twelve changes.
std::vector<lytTreeRecord> MutatedCatalogue(Dice& dice);
