// One way of a text out of a dialog and back into a fresh one.
#pragma once

#include "lytdlg/trip/TripStage.h"

namespace lytdlg
{

struct Trip
{
    TripText out;
    size_t begin = 0; // of what comes back, in the text that went out
    std::string text; // that came back
    TripValues before;
    TripValues after;
    std::set<std::string> reached; // by the user, when the text went out
    std::vector<TripCut> cuts;
    std::vector<TripJump> lastJumps;
    std::string rest;
    std::string again; // the text that goes out the next time
    int againLine = 0; // of its rule
};

} // namespace lytdlg
