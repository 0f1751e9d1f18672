// Lists that the user collects items in: where the items come from, and where they go.
#pragma once

#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

void TellCollectingLists(TripTeller& teller, const Description& description);

} // namespace lytdlg
