// What locks the user out of a dialog, or its OK button.
#pragma once

#include "lytdlg/trip/Journey.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

// Of the controls that are locked for a reason that has a finding nothing more is said.
void TellLocks(TripTeller& teller, TripStage& stage, const TripPlan& plan, const std::vector<TripLook>& looks,
               std::set<std::string> locked);

} // namespace lytdlg
