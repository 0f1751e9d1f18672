// A partner library that does what a test tells it: every function hands its call over. One file of it is the data
// library `hostile`, others are `lytsrc` and `LytRes64`.
#pragma once

#include "lytdata.h"
#include "lytsrc.h"

// What each function does; a null one does nothing and ends every listing.
struct HostileActs
{
    lytDataText* text = nullptr;
    lytDataStart* start = nullptr;
    lytDataNext* next = nullptr;
    int32_t (*treeStart)(const char* selection) = nullptr;
    int32_t (*treeNext)(lytTreeRecord* record) = nullptr;
    void (*version)(char* text) = nullptr;
};

extern "C" HostileActs* Acts();
