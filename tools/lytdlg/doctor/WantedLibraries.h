// The partner libraries that a deployment needs, and the functions that are called in them.
#pragma once

#include "lytdlg/doctor/Diagnosis.h"
#include "lytdlg/judge/Description.h"

#include <list>

namespace lytdlg
{

// A function that is called, and where; without a path the library itself calls it.
struct WantedFunction
{
    std::string name;
    std::string path;
    ClytSpan place;
    bool isNeeded = true;
};

// A library that is called, by the library itself or by descriptions.
struct WantedLibrary
{
    std::string name; // as it is called
    std::string path; // of the description that names it first
    ClytSpan place;
    std::vector<WantedFunction> functions;
    Verdict whenMissing = Verdict::Wrong;
    std::string consequence;
};

// The libraries that the library itself looks for.
struct OwnPartner
{
    const char* name;
    std::vector<const char*> needed;
    std::vector<const char*> optional; // when there is no other function, one of them must be there
    Verdict whenMissing;
    const char* consequence; // of one that is missing
};
const std::vector<OwnPartner>& OwnPartners();

// Those that the library itself looks for, and then those that descriptions call.
std::vector<WantedLibrary> WantedLibraries(const std::list<Description>& descriptions);

} // namespace lytdlg
