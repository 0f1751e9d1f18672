#include "lytdlg/judge/ScanPaths.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

using Step = const ClytDialogInput*;
using Successors = std::vector<Step> (*)(const ClytInputPart& part, const ClytDialogInput& statement);

bool IsScan(const ClytDialogInput& statement)
{
    return statement.scanRule.scan.HasScan() != 0;
}

std::vector<Step> Found(const ClytInputPart& part, std::initializer_list<CString> names)
{
    std::vector<Step> found;
    for (const CString& name : names)
    {
        const Step statement = name == "End" ? nullptr : part.Find(name);
        if (statement != nullptr)
            found.push_back(statement);
    }
    return found;
}

// Only jumps cut nothing whatever the text is, and nothing changes a control between them.
std::vector<Step> Jump(const ClytInputPart& part, const ClytDialogInput& statement)
{
    if (IsScan(statement))
        return {};
    return statement.conditions.IsEmpty() ? Found(part, {statement.falseTarget})
                                          : Found(part, {statement.trueTarget, statement.falseTarget});
}

// Inside a text an empty separator in the first place cuts nothing.
std::vector<Step> WithinText(const ClytInputPart& part, const ClytDialogInput& statement)
{
    const ClytScan& scan = statement.scanRule.scan;
    if (!IsScan(statement))
        return statement.conditions.IsEmpty() ? Found(part, {statement.falseTarget}) : std::vector<Step>();
    const bool cutsNothing = scan.GetLength() == 0 && scan.GetSeparators().GetHead()->text.IsEmpty();
    return cutsNothing ? Found(part, {scan.TargetOf("")}) : std::vector<Step>();
}

// At the end of a text nothing is left to cut.
std::vector<Step> AtEnd(const ClytInputPart& part, const ClytDialogInput& statement)
{
    const ClytScan& scan = statement.scanRule.scan;
    if (!IsScan(statement))
        return WithinText(part, statement);
    return Found(part, {scan.GetLength() != 0 ? scan.GetTarget() : scan.TargetOf("Rest")});
}

// The way from a statement back to itself; empty when there is none.
std::vector<Step> WayRound(const ClytInputPart& part, Step start, Successors successors)
{
    std::vector<Step> way = {start};
    std::set<Step> seen = {start};
    while (!way.empty())
    {
        Step next = nullptr;
        for (const Step candidate : successors(part, *way.back()))
        {
            if (candidate == start)
                return way;
            if (next == nullptr && !seen.contains(candidate))
                next = candidate;
        }
        if (next == nullptr)
        {
            way.pop_back();
            continue;
        }
        seen.insert(next);
        way.push_back(next);
    }
    return way;
}

} // namespace

std::vector<ScanTarget> TargetsOf(const Description& description, const ClytDialogInput& statement)
{
    const int line = statement.span.line;
    const auto at = [&](const CString& name, int column) {
        return ScanTarget{name.GetString(), description.PlaceOf(line, name.GetString(), column)};
    };
    const int start = statement.span.column + statement.name.GetLength();
    const ClytScan& scan = statement.scanRule.scan;
    if (!IsScan(statement))
        return statement.conditions.IsEmpty()
                   ? std::vector{at(statement.falseTarget, start)}
                   : std::vector{at(statement.trueTarget, start), at(statement.falseTarget, start)};
    if (scan.GetLength() != 0)
        return {at(scan.GetTarget(), scan.GetLengthSpan().column + scan.GetLengthSpan().length)};
    std::vector<ScanTarget> targets;
    for (const ClytSeparator* separator : Records(scan.GetSeparators()))
        targets.push_back(at(separator->target, separator->span.column + separator->span.length));
    return targets;
}

std::set<const ClytDialogInput*> Reached(const Description& description, const ClytInputPart& part)
{
    std::set<Step> reached;
    std::vector<Step> open = Found(part, {CString(lytStartName)});
    while (!open.empty())
    {
        const Step statement = open.back();
        open.pop_back();
        if (!reached.insert(statement).second)
            continue;
        for (const ScanTarget& target : TargetsOf(description, *statement))
        {
            for (const Step next : Found(part, {CString(target.name.c_str())}))
                open.push_back(next);
        }
    }
    return reached;
}

std::vector<ScanCircle> CirclesOf(const Description& description, const ClytInputPart& part)
{
    const std::set<Step> reached = Reached(description, part);
    std::vector<ScanCircle> circles;
    std::set<Step> told;
    for (const Successors successors : {WithinText, AtEnd, Jump})
    {
        for (const ClytDialogInput* statement : Records(part.GetStatements()))
        {
            if (!reached.contains(statement) || told.contains(statement))
                continue;
            const std::vector<Step> way = WayRound(part, statement, successors);
            if (way.empty())
                continue;
            told.insert(way.begin(), way.end());
            circles.push_back({way, successors == Jump, successors == AtEnd});
        }
    }
    return circles;
}

} // namespace lytdlg
