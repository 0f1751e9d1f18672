// What differs between two reports.
#pragma once

#include "lytcall/ReportText.h"

namespace lytcall
{

struct ReportDifference
{
    std::string text;        // for people: block by block, what the first report has and the second, line by line
    size_t lines = 0;        // that differ
    size_t fromRunToRun = 0; // that differ, as such lines do
};

// Compares block by block. The order of the lines in a block does not count.
ReportDifference CompareReports(const ReportLines& first, const ReportLines& second);

} // namespace lytcall
