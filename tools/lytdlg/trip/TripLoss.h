// What is lost between a text that went out and the dialog that it came back into, and where.
#pragma once

#include "lytdlg/trip/Trip.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

void TellLosses(TripTeller& teller, const TripPlan& plan, const Trip& trip);

} // namespace lytdlg
