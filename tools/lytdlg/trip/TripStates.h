// What the controls of a dialog are filled with, one trial after the other.
#pragma once

#include "lytdlg/trip/TripStage.h"

namespace lytdlg
{

// Each value of each control, the values of any two controls together as far as they are few, every field empty, and what
// each rule of the result asks for. How many there are depends on the size of the description: the larger, the fewer.
std::vector<TripState> StatesOf(const TripPlan& plan);

// All controls hold something. The turn chooses among the values of each.
TripState FullState(const TripPlan& plan, size_t turn = 0);
// The place of the control's wish; its name is known to the plan.
TripWish& WishOf(const TripPlan& plan, TripState& state, const std::string& name);

} // namespace lytdlg
