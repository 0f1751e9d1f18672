// What separates words in each section of a description. Readers of other sections start where a header is found, so a
// header's words are cut by the set of the section before it.
#pragma once

#include "base/DelimiterSet.h"

inline constexpr DelimiterSet lytHeaderDelimiters(" ,\t\n();:"); // up to the layout line
inline constexpr DelimiterSet lytDialogDelimiters(" ,\t\n();");  // the line of the dialog itself
inline constexpr DelimiterSet lytControlDelimiters(" ,\t\n;");
inline constexpr DelimiterSet lytValueDelimiters("=,\t\n();:");
inline constexpr DelimiterSet lytDependencyDelimiters("=,\t\n()/");
inline constexpr DelimiterSet lytEvaluationDelimiters("=,\t\n():;");
inline constexpr DelimiterSet lytFirstInputDelimiters("=,\n():"); // the line after a header of an input part
inline constexpr DelimiterSet lytInputDelimiters("=,\t\n():;");
inline constexpr DelimiterSet lytOutputDelimiters("=,\n():<>");
