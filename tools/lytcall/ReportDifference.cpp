#include "lytcall/ReportText.h"

#include "commandline/Text.h"

#include <algorithm>
#include <map>

namespace lytcall
{

namespace
{

// A line of one report that the other lacks.
struct Change
{
    char side; // - in the first report, + in the second
    std::string line;
};

using Changes = std::vector<Change>;

// The lines that the other report has fewer of.
ReportLines LackingIn(const ReportLines& other, const ReportLines& lines)
{
    std::map<std::string, int> left;
    for (const std::string& line : other)
        ++left[line];
    ReportLines lacking;
    for (const std::string& line : lines)
    {
        if (--left[line] < 0)
            lacking.push_back(line);
    }
    return lacking;
}

// Both sides of a changed line come together.
Changes ChangesOf(const ReportLines& first, const ReportLines& second)
{
    Changes changes;
    ReportLines added = LackingIn(first, second);
    for (const std::string& line : LackingIn(second, first))
    {
        changes.push_back({'-', line});
        const auto pair = std::ranges::find(added, LabelOf(line), LabelOf);
        if (pair == added.end())
            continue;
        changes.push_back({'+', *pair});
        added.erase(pair);
    }
    for (const std::string& line : added)
        changes.push_back({'+', line});
    return changes;
}

void Tell(const std::string& title, const Changes& changes, ReportDifference& difference)
{
    if (!changes.empty())
        difference.text += title + "\n";
    for (const Change& change : changes)
        difference.text += std::string("  ") + change.side + " " + commandline::Printable(change.line) + "\n";
}

// The blocks of a report by title; the second of two with one title gets a number.
std::vector<ReportBlock> NamedBlocks(const ReportLines& lines)
{
    std::vector<ReportBlock> blocks = CutReport(lines);
    std::map<std::string, int> seen;
    for (ReportBlock& block : blocks)
    {
        const int number = ++seen[block.title];
        if (number > 1)
            block.title += " (" + std::to_string(number) + ")";
    }
    return blocks;
}

// Takes the lines with that title; none when there are none left.
ReportLines Take(std::vector<ReportBlock>& blocks, const std::string& title)
{
    const auto block = std::ranges::find(blocks, title, &ReportBlock::title);
    if (block == blocks.end())
        return {};
    ReportLines lines = block->lines;
    blocks.erase(block);
    return lines;
}

} // namespace

ReportDifference CompareReports(const ReportLines& first, const ReportLines& second)
{
    std::vector<ReportBlock> before = NamedBlocks(first);
    std::vector<ReportBlock> after = NamedBlocks(second);
    ReportDifference difference;
    Changes fromRunToRun;
    while (!before.empty() || !after.empty())
    {
        const std::string title = before.empty() ? after.front().title : before.front().title;
        const ReportLines old = Take(before, title);
        Changes changes = ChangesOf(old, Take(after, title));
        const auto lasting = std::stable_partition(
            changes.begin(), changes.end(), [](const Change& change) { return !ChangesFromRunToRun(change.line); });
        fromRunToRun.insert(fromRunToRun.end(), lasting, changes.end());
        changes.erase(lasting, changes.end());
        difference.lines += changes.size();
        Tell(title, changes, difference);
    }
    difference.fromRunToRun = fromRunToRun.size();
    Tell("Lines that differ from run to run", fromRunToRun, difference);
    return difference;
}

} // namespace lytcall
