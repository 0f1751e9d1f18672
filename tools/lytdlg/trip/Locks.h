// What locks the user out of a dialog, or its OK button.
#pragma once

#include "lytdlg/trip/Journey.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

// Controls that are locked for a reason that has a finding are not reported again.
void TellLocks(TripTeller& teller, TripStage& stage, const TripPlan& plan, const std::vector<TripLook>& looks,
               std::set<std::string> locked);

} // namespace lytdlg
