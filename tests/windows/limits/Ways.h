// The ways on which the library calls each partner, and what comes of it.
#pragma once

#include "Scene.h"

using Steps = void (*)(Scene& scene);

inline void NoSteps(Scene& /*scene*/) {}

// A dialog whose button fills the key's field from the function `Text`; then the steps, then OK. Result and text.
std::string FillText(Scene& scene, Steps between = NoSteps, const std::string& library = "hostile");
// A dialog whose button fills a list by `Start` and `Next`; then the steps, then OK. The items of the list before OK.
Texts FillList(Scene& scene, Steps between = NoSteps, const std::string& library = "hostile");
// A dialog whose button has `Text` for its action; then the steps, then OK. Result and text.
std::string Act(Scene& scene, Steps between = NoSteps, const std::string& library = "hostile");
// What the report says of the resource library's version.
std::string VersionLine(const Scene& scene);
// What it says of a library that is missing.
std::string NoVersion();
