// What each step of a script does to the live windows: a table of word, condition and action.
#pragma once

#include "lytcall/Script.h"

#include <windows.h>

#include <string>

namespace lytcall
{

// What steps know of the windows beside themselves.
struct Stage
{
    HWND window = nullptr; // the one that the last `window` step met
};

struct StepAction
{
    const char* word;
    // Whether the step can be taken; asked again and again until it can or its time is up.
    bool (*ready)(const Stage& stage, const Step& step);
    // Takes the step. What it posts reaches the windows before the next step is asked. Raises std::runtime_error with
    // the reason when it cannot be taken after all.
    void (*act)(Stage& stage, const Step& step);
};

// The action of a step; every word of the language has one.
const StepAction& ActionOf(const Step& step);
// Why a step could not be taken in time, and what to do about it.
std::string ReasonOf(const Stage& stage, const Step& step);

} // namespace lytcall
