// Check lists that a library fills by the marks that the text brings back.
#pragma once

#include "lytdlg/trip/TripComparison.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

void TellLibraryMarks(TripTeller& teller, const TripComparison& compared);

} // namespace lytdlg
