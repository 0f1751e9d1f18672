// Findings in the language files beside a description.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

// The line is the whole one that the place is in.
void AddIn(const Case& judged, const Rule& rule, const LanguageFile& file, const ClytSpan& place,
           const std::string& line, const std::string& message, const std::string& hint);

} // namespace lytdlg
