#include "lytdlg/trip/TripEvidence.h"

#include "dialog/ClytDialog.h"
#include "dialog/FormatReader.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

void AddGaps(const CString& format, std::vector<std::string>& gaps)
{
    const size_t before = gaps.size();
    ClytFormatReader reader(format);
    while (!reader.IsAtEnd())
    {
        const ClytFormatPiece piece = reader.Take();
        if (piece.kind == ClytFormatPiece::Kind::Item)
            gaps.emplace_back();
        else if (gaps.size() > before)
            gaps.back().append(format.GetString() + piece.start, static_cast<size_t>(piece.length));
    }
}

bool IsSplitBy(const ClytDialogInput& statement, char separator)
{
    const auto splits = [&](const ClytConditionFill* rule)
    {
        const ClytControlFill& fill = *rule->fills.GetHead();
        return fill.action.GetMeaning() == ClytFillAction::Concat && fill.operands[0].Find(separator) >= 0;
    };
    return std::ranges::any_of(Records(statement.scanRule.rules), splits);
}

} // namespace

const EvaluationStatement* LastCheckOf(const Description& description, const std::string& name)
{
    const EvaluationStatement* last = nullptr;
    for (const EvaluationStatement& statement : description.evaluations)
    {
        if (name == statement.own.GetName().GetString())
            last = &statement;
    }
    return last;
}

std::vector<const ClytDialogOutput*> RulesOfResult(const Description& description)
{
    std::vector<const ClytDialogOutput*> rules;
    for (const OutputGroup& group : description.outputs)
    {
        if (group.name == lytParentName)
            std::ranges::copy(Records(group.rules), std::back_inserter(rules));
    }
    return rules;
}

std::vector<std::string> GapsOf(const Description& description)
{
    std::vector<std::string> gaps;
    for (const ClytDialogOutput* rule : RulesOfResult(description))
    {
        if (rule->format.Find('%') >= 0)
            AddGaps(rule->format, gaps);
    }
    return gaps;
}

bool IsWrittenAnywhere(const Description& description, const std::vector<std::string>& separators)
{
    const std::vector<std::string> gaps = GapsOf(description);
    const auto isWritten = [&](const std::string& separator)
    {
        return !separator.empty() &&
               std::ranges::any_of(gaps, [&](const std::string& gap) { return gap.starts_with(separator); });
    };
    return std::ranges::any_of(separators, isWritten);
}

bool IsSplitAnywhere(const Description& description, char separator)
{
    for (const InputPart& part : description.inputs)
    {
        if (std::ranges::any_of(Records(part.part->GetStatements()),
                                [&](const ClytDialogInput* statement) { return IsSplitBy(*statement, separator); }))
            return true;
    }
    return false;
}

bool IsJoinedAnywhere(const Description& description, const std::string& separators)
{
    const auto isJoined = [&](const ClytOutputItem& item)
    {
        return !item.action.IsEmpty() && !lytMeans<ClytFillAction::Concat>(item.action) &&
               separators.find(item.action[0]) != std::string::npos;
    };
    return std::ranges::any_of(RulesOfResult(description), [&](const ClytDialogOutput* rule)
                               { return std::ranges::any_of(rule->items, isJoined); });
}

bool HasLargerLimit(const Description& description, const std::string& item, size_t limit)
{
    for (const ClytDialogOutput* rule : RulesOfResult(description))
    {
        const std::vector<int> limits = LimitsOf(rule->format.GetString());
        for (size_t index = 0; index < std::min(limits.size(), rule->items.size()); ++index)
        {
            if (item == rule->items[index].text.GetString() && static_cast<size_t>(limits[index]) > limit)
                return true;
        }
    }
    return false;
}

bool LeadsTo(const TripPlan& plan, const std::string& statement, const std::string& control)
{
    const auto parent = std::ranges::find(plan.Of().inputs, lytParentName, &InputPart::name);
    std::vector<std::string> open = {statement};
    std::set<std::string> seen;
    while (!open.empty() && parent != plan.Of().inputs.end())
    {
        const std::string name = open.back();
        open.pop_back();
        const ClytDialogInput* present = seen.insert(name).second ? parent->part->Find(name.c_str()) : nullptr;
        if (present == nullptr)
            continue;
        if (std::ranges::any_of(plan.TakersOf(control),
                                [&](const TripTaker& taker) { return taker.statement == present; }))
            return true;
        if (present->scanRule.scan.HasScan() == 0)
            open.insert(open.end(), {present->trueTarget.name.GetString(), present->falseTarget.name.GetString()});
    }
    return false;
}

bool GivesValue(const TripPlan& plan, const std::string& statement, const std::string& control,
                const std::string& value)
{
    const auto parent = std::ranges::find(plan.Of().inputs, lytParentName, &InputPart::name);
    const ClytDialogInput* present = parent != plan.Of().inputs.end() ? parent->part->Find(statement.c_str()) : nullptr;
    const auto gives = [&](const ClytConditionFill* rule)
    {
        const ClytControlFill& fill = *rule->fills.GetHead();
        return control == fill.controlName.GetString() && !TakesPiece(fill) && value == fill.value.GetString();
    };
    return present != nullptr && std::ranges::any_of(Records(present->scanRule.rules), gives);
}

bool ClosesBracket(const std::string& before, const std::string& gap)
{
    constexpr std::string_view opening = "([{<";
    constexpr std::string_view closing = ")]}>";
    const size_t kind = gap.empty() ? std::string_view::npos : closing.find(gap.front());
    return kind != std::string_view::npos &&
           std::ranges::count(before, opening[kind]) > std::ranges::count(before, closing[kind]);
}

} // namespace lytdlg
