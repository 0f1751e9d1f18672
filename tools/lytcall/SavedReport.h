// A report that was saved, as text or as JSON, in UTF-8 or UTF-16.
#pragma once

#include "lytcall/ReportText.h"

#include <optional>
#include <string>

namespace lytcall
{

// The lines of the report, in UTF-8; nothing when the bytes of the file are no report.
std::optional<ReportLines> ReadSavedReport(const std::string& bytes);

} // namespace lytcall
