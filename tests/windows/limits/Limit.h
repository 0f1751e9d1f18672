// What the library does where a caller, a partner library or a file breaks the rules: docs/limits.md lists these rows, and
// each is proven.
#pragma once

#include <span>

class Scene;

struct Limit
{
    const char* subject; // who breaks a rule
    const char* breach;
    const char* outcome;
    void (*prove)(Scene& scene);
};

struct LimitTable
{
    const char* title;
    const char* about;
    const char* subject; // heading of the first column
    std::span<const Limit> limits;
};

extern const LimitTable momentLimits;
extern const LimitTable answerLimits;
extern const LimitTable partnerLimits;
extern const LimitTable fileLimits;
