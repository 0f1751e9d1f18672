// What locks the user out of a dialog, or its OK button.
#pragma once

#include "lytdlg/trip/Journey.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

void TellLocks(TripTeller& teller, TripStage& stage, const TripPlan& plan, const std::vector<TripLook>& looks);

} // namespace lytdlg
