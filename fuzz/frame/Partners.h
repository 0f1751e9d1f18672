// The partner libraries that the descriptions of the samples name, with what an input gives them to deliver. They are in
// the places of the samples' own, which read files.
#pragma once

#include "lytsrc.h"

#include <string>
#include <vector>

// Puts them in place, once for the life of the program. Each class of controls keeps the library that it loads first, so
// this comes before any input.
void InstallPartners();

// From now on the catalogue delivers what the lines say: a character for the level (`<` and `>` are the lowest and the
// highest number), one for the type, the label, a tab and the key.
void SetCatalogue(const std::string& lines);
