// Controls that are never where they are asked for, and checks that never refuse.
#pragma once

#include "lytdlg/trip/Journey.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

struct OutOfReach
{
    std::set<std::string> controls; // that it reports
    std::set<std::string> certain;  // of these, the ones that the input reads where the output writes them
};

OutOfReach TellReach(TripTeller& teller, TripStage& stage, const TripPlan& plan, const std::vector<TripLook>& looks);

} // namespace lytdlg
