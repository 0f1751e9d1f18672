#include "lytdlg/judge/ScanPaths.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

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

// Only jumps cut nothing in any text, and nothing changes a control between them.
std::vector<Step> Jump(const ClytInputPart& part, const ClytDialogInput& statement)
{
    if (IsScan(statement))
        return {};
    return statement.conditions.IsEmpty() ? Found(part, {statement.falseTarget.name})
                                          : Found(part, {statement.trueTarget.name, statement.falseTarget.name});
}

// Inside a text an empty separator in the first place cuts nothing.
std::vector<Step> WithinText(const ClytInputPart& part, const ClytDialogInput& statement)
{
    const ClytScan& scan = statement.scanRule.scan;
    if (!IsScan(statement))
        return statement.conditions.IsEmpty() ? Found(part, {statement.falseTarget.name}) : std::vector<Step>();
    const bool cutsNothing = scan.GetLength() == 0 && scan.GetSeparators().GetHead()->text.IsEmpty();
    return cutsNothing ? Found(part, {scan.TargetOf("").name}) : std::vector<Step>();
}

// At the end of a text nothing is left to cut.
std::vector<Step> AtEnd(const ClytInputPart& part, const ClytDialogInput& statement)
{
    const ClytScan& scan = statement.scanRule.scan;
    if (!IsScan(statement))
        return WithinText(part, statement);
    return Found(part, {(scan.GetLength() != 0 ? scan.GetTarget() : scan.TargetOf("Rest")).name});
}

// Goes along all ways once, each statement once, and notes where one leads back to a statement that it came from.
class CircleSearch
{
public:
    CircleSearch(const ClytInputPart& part, Successors successors) : m_part(part), m_successors(successors) {}

    void From(Step start)
    {
        if (m_places.try_emplace(start, 0).second)
            Enter(start);
        while (!m_way.empty())
        {
            Stop& here = m_way.back();
            if (here.taken == here.next.size())
            {
                m_places[here.statement] = left;
                m_way.pop_back();
                continue;
            }
            const Step next = here.next[here.taken++];
            const auto [place, isNew] = m_places.try_emplace(next, m_way.size());
            if (isNew)
                Enter(next);
            else if (place->second != left)
                Close(place->second);
        }
    }

    const std::vector<std::vector<Step>>& Circles() const { return m_circles; }

private:
    struct Stop
    {
        Step statement;
        std::vector<Step> next;
        size_t taken = 0;
    };

    // What leads back comes first, for the shortest circle.
    void Enter(Step statement)
    {
        Stop& here = m_way.emplace_back(Stop{statement, m_successors(m_part, *statement)});
        const auto leadsBack = [&](Step next)
        {
            const auto place = m_places.find(next);
            return place != m_places.end() && place->second != left;
        };
        std::stable_partition(here.next.begin(), here.next.end(), leadsBack);
    }

    // Statements of a circle that was found are in no other one, and a few circles are enough to begin with.
    void Close(size_t from)
    {
        constexpr size_t mostCircles = 20;
        if (m_circles.size() == mostCircles ||
            (m_found.contains(m_way.back().statement) && m_found.contains(m_way[from].statement)))
            return;
        std::vector<Step>& circle = m_circles.emplace_back();
        for (size_t index = from; index < m_way.size(); ++index)
            circle.push_back(m_way[index].statement);
        const auto lineOf = [](Step statement) { return statement->span.line; };
        std::rotate(circle.begin(), std::ranges::min_element(circle, {}, lineOf), circle.end());
        m_found.insert(circle.begin(), circle.end());
    }

    static constexpr size_t left = SIZE_MAX;

    const ClytInputPart& m_part; // of the description
    const Successors m_successors;
    std::vector<Stop> m_way;
    std::unordered_map<Step, size_t> m_places; // on the way, or left
    std::unordered_set<Step> m_found;
    std::vector<std::vector<Step>> m_circles;
};

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
                   ? std::vector{at(statement.falseTarget.name, start)}
                   : std::vector{at(statement.trueTarget.name, start), at(statement.falseTarget.name, start)};
    if (scan.GetLength() != 0)
        return {at(scan.GetTarget().name, scan.GetLengthSpan().column + scan.GetLengthSpan().length)};
    std::vector<ScanTarget> targets;
    for (const ClytSeparator* separator : Records(scan.GetSeparators()))
        targets.push_back(at(separator->target.name, separator->span.column + separator->span.length));
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
        CircleSearch search(part, successors);
        for (const ClytDialogInput* statement : Records(part.GetStatements()))
        {
            if (reached.contains(statement))
                search.From(statement);
        }
        for (const std::vector<Step>& way : search.Circles())
        {
            if (std::ranges::all_of(way, [&](Step statement) { return told.contains(statement); }))
                continue;
            told.insert(way.begin(), way.end());
            circles.push_back({way, successors == Jump, successors == AtEnd});
        }
    }
    return circles;
}

} // namespace lytdlg
