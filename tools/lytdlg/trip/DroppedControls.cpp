#include "lytdlg/trip/DroppedControls.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/trip/TripEvidence.h"

#include <algorithm>

namespace lytdlg
{

bool DroppedControls::HasAny() const
{
    return LostChoice() != nullptr || std::ranges::any_of(m_compared.Plan().Controls(), [&](const TripControl& control)
                                                          { return IsDropped(control); });
}

const ClytDialogOutput* DroppedControls::Rule() const
{
    const std::vector<const ClytDialogOutput*> rules = RulesOfResult(m_compared.Of());
    const auto rule =
        std::ranges::find_if(rules, [&](const ClytDialogOutput* each) { return each->span.line == m_trip.out.line; });
    return rule != rules.end() ? *rule : nullptr;
}

// The conditions of a rule on choices. One for what is empty is no choice.
std::vector<const ClytCtrlValList*> DroppedControls::ChoicesOf(const ClytDialogOutput& rule) const
{
    std::vector<const ClytCtrlValList*> choices;
    for (const ClytCtrlValList* condition : Records(rule.conditions))
    {
        const TripControl* asked = m_compared.Plan().Find(condition->GetName().GetString());
        if ((asked == nullptr || asked->mark.empty()) && ValuesAskedBy(*condition) != std::vector<std::string>{""})
            choices.push_back(condition);
    }
    return choices;
}

// Whether the other rule is for the same choice as well.
bool DroppedControls::IsForSame(const ClytCtrlValList& choice, const ClytDialogOutput& other) const
{
    for (const ClytCtrlValList* condition : ChoicesOf(other))
    {
        const std::vector<std::string> values = ValuesAskedBy(*condition);
        const auto isShared = [&](const std::string& value)
        { return std::ranges::find(values, value) != values.end(); };
        if (condition->GetName() == choice.GetName() && std::ranges::any_of(ValuesAskedBy(choice), isShared))
            return true;
    }
    return false;
}

// A rule for one choice may well leave out what belongs to another one, unless another rule for that choice has it.
bool DroppedControls::MayLeaveOut(const std::string& name) const
{
    const ClytDialogOutput* rule = Rule();
    if (rule == nullptr || ChoicesOf(*rule).empty())
        return rule == nullptr;
    for (const ClytDialogOutput* other : RulesOfResult(m_compared.Of()))
    {
        const bool puts = std::ranges::any_of(other->items, [&](const ClytOutputItem& item)
                                              { return name == item.text.GetString(); });
        if (puts && std::ranges::all_of(ChoicesOf(*rule),
                                        [&](const ClytCtrlValList* choice) { return IsForSame(*choice, *other); }))
            return false;
    }
    return true;
}

bool DroppedControls::IsDropped(const TripControl& control) const
{
    const std::vector<TripTaker>& takers = m_compared.Plan().TakersOf(control.name);
    const bool isRead =
        std::ranges::any_of(takers, &TripTaker::isAlone) ||
        (takers.empty() && m_compared.Plan().IsFilled(control.name) && m_compared.Plan().IsPut(control.name));
    const bool isHeld = control.isEntered ? m_trip.reached.contains(control.name) : control.isAnswered;
    const bool isMissed =
        !MayLeaveOut(control.name) || !m_compared.Plan().IsPut(control.name) || IsReadNext(control.name);
    return isHeld && m_compared.ItemOf(control.name) == nullptr && isRead && !m_trip.before.at(control.name).empty() &&
           !m_compared.IsSame(control.name) && isMissed && !IsMisread(control.name);
}

// Whether the run has come to what reads the control, or would have with more of the text.
bool DroppedControls::IsReadNext(const std::string& name) const
{
    const auto takes = [&](const TripCut& cut) { return cut.Takes(name); };
    const auto leadsThere = [&](const std::string& target) { return LeadsTo(m_compared.Plan(), target, name); };
    return !m_trip.cuts.empty() &&
           (std::ranges::any_of(m_trip.cuts, takes) || std::ranges::any_of(m_trip.cuts.back().targets, leadsThere));
}

// Whether the control is in the text as a fixed word, and its piece has something of an item as well.
bool DroppedControls::IsMisread(const std::string& name) const
{
    return std::ranges::any_of(m_trip.cuts,
                               [&](const TripCut& cut)
                               {
                                   const auto isInside = [&](const TripItem& item) {
                                       return item.begin >= m_trip.begin && m_compared.Begin(item) > cut.begin &&
                                              m_compared.Begin(item) < cut.end;
                                   };
                                   return cut.Takes(name) && std::ranges::any_of(m_trip.out.items, isInside);
                               });
}

// The choice that the rule is for, when its text leads to another one.
const ClytCtrlValList* DroppedControls::LostChoice() const
{
    const ClytDialogOutput* rule = Rule();
    for (const ClytCtrlValList* choice : rule != nullptr ? ChoicesOf(*rule) : std::vector<const ClytCtrlValList*>())
    {
        const std::string name = choice->GetName().GetString();
        const TripControl* control = m_compared.Plan().Find(name);
        if (control == nullptr || !m_compared.Plan().IsFilled(name) || !m_trip.reached.contains(name))
            continue;
        const std::vector<std::string> values = ValuesAskedBy(*choice);
        const auto isAsked = [&](const std::string& value) { return std::ranges::find(values, value) != values.end(); };
        if (!values.empty() && isAsked(m_trip.before.at(name)) && !isAsked(m_trip.after.at(name)) &&
            m_compared.ItemOf(name) == nullptr && !IsMisread(name))
            return choice;
    }
    return nullptr;
}

bool DroppedControls::Tell()
{
    const auto isAstray = [&](const TripItem& item)
    { return m_compared.IsBack(item) && !m_compared.Plan().IsFilled(item.name); };
    if (std::ranges::any_of(m_trip.out.items, isAstray))
        return false;
    bool isTold = false;
    for (const TripControl& control : m_compared.Plan().Controls())
    {
        if (!IsDropped(control))
            continue;
        const std::vector<TripTaker>& takers = m_compared.Plan().TakersOf(control.name);
        const int reader = takers.empty() ? 0 : takers.front().fill->span.line;
        m_teller.TellDropped(control.name, m_compared.Of().PlaceOf(m_trip.out.line), reader,
                             (reader != 0 ? NumberedLine(reader) : std::string("the input")) + " reads " +
                                 InQuotes(control.name) +
                                 ", and this rule does not write it: " + Excerpt(m_trip.before.at(control.name)) +
                                 " is lost, and " + Excerpt(m_trip.text) + " goes out",
                             "put " + InQuotes(control.name) + " among the items where the input reads it");
        isTold = true;
    }
    return isTold || TellChoice();
}

bool DroppedControls::TellChoice()
{
    const ClytCtrlValList* choice = LostChoice();
    if (choice == nullptr)
        return false;
    const std::string name = choice->GetName().GetString();
    m_teller.Tell("trip-changed", m_compared.Of().PlaceOf(m_trip.out.line), 0,
                  "this rule is for " + InQuotes(name) + " = " + Excerpt(m_trip.before.at(name)) + ", and " +
                      m_compared.ComesBack(name),
                  "write what the input reads as " + Excerpt(m_trip.before.at(name)));
    return true;
}

} // namespace lytdlg
