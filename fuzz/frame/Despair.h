// What no user could bear is a find, like a crash.
#pragma once

#include "model/ClytObserver.h"
#include "robot/WindowRobot.h"

#include <cstdio>
#include <cstdlib>
#include <string>

// Ends the program unless the text is empty.
inline void DemandNone(const std::string& despair)
{
    if (despair.empty())
        return;
    std::fprintf(stderr, "%s\n", despair.c_str());
    std::abort();
}

// A scan tells of each fill that fails, however many pieces a text has: each piece counts as an act.
class FillsAreActs : public ClytObserver
{
public:
    FillsAreActs() { lytObserver = this; }
    FillsAreActs(const FillsAreActs&) = delete;
    FillsAreActs& operator=(const FillsAreActs&) = delete;
    ~FillsAreActs() { lytObserver = nullptr; }

    void Filled(const ClytControlFill& /*fill*/, const CString& piece) override
    {
        if (!piece.IsEmpty())
            robot::BeginAct();
    }
};
