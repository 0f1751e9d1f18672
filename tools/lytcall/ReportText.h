// A report as text: its blocks, and the lines that tell of the moment.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lytcall
{

using ReportLines = std::vector<std::string>;

std::string TextOf(const ReportLines& lines);

struct ReportBlock
{
    std::string title;
    ReportLines lines;
};

// Cuts a report at the lines that begin its blocks. The titles are as in docs/report.md; a word processor's version has
// a separate block.
std::vector<ReportBlock> CutReport(const ReportLines& lines);
// The part before the value of a line; the whole line without one. A colon after a single letter is that of a drive.
std::string LabelOf(const std::string& line);
// True for a line that differs between any two runs on one machine.
bool ChangesFromRunToRun(const std::string& line);
// The report as JSON in UTF-8: an object with the blocks, each with its title and lines. The lines are UTF-8, too.
std::string JsonOf(const std::vector<ReportBlock>& blocks);
// Why nothing was judged, as the verdict on a deployment.
std::string JsonOfRefusal(const std::string& reason);

// The lines of the report, in UTF-8; nothing when the bytes of the file are not a report.
std::optional<ReportLines> ReadSavedReport(const std::string& bytes);

struct ReportDifference
{
    std::string text;        // for people: block by block, what the first report has and the second, line by line
    size_t lines = 0;        // that differ
    size_t fromRunToRun = 0; // that differ, as such lines do
};

// Compares block by block. The order of the lines in a block does not count.
ReportDifference CompareReports(const ReportLines& first, const ReportLines& second);

} // namespace lytcall
