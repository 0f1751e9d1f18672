// The texts that a dialog is tried with, for `roundtrip`: those that check tries, and what an author may type.
#pragma once

#include "lytdlg/trip/Journey.h"

namespace lytdlg
{

struct GeneratedTrip
{
    std::string typed; // what was typed into which control, in words; empty for a text of marks and choices
    std::string text;
    std::string again; // the text that it comes back as; equal to it when nothing is lost
    std::string lost;  // the controls that come back with another value
};

struct GeneratedTrips
{
    std::vector<GeneratedTrip> trips;
    std::vector<std::string> notTried; // in words
};

GeneratedTrips GenerateTrips(const Description& description);

} // namespace lytdlg
