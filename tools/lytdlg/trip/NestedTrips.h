// The way from a dialog to one that its button opens, and back.
#pragma once

#include "lytdlg/trip/TripLoss.h"

namespace lytdlg
{

void TryNested(TripTeller& teller, TripStage& stage, const TripPlan& plan);
// Whether a dialog of the folder can read what this one returns, and returns it in the form that this one reads.
bool ReturnsThroughCaller(const Case& judged, TripStage& stage, const TripPlan& plan);

} // namespace lytdlg
