#include "lytdlg/trip/Journey.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/trip/TripEvidence.h"

#include <algorithm>

namespace lytdlg
{

void Journey::Make()
{
    for (const TripState& state : StatesOf(m_plan))
        Try(state);
    for (size_t index = 0; index < m_plan.Controls().size(); ++index)
        TryLong(index);
}

// What checks refuse is tried once more with other values.
void Journey::Try(const TripState& state)
{
    const std::vector<std::string> refusing = TryOnce(state);
    if (refusing.empty())
        return;
    const TripState allowed = AllowedBy(refusing, state);
    if (allowed == state || std::ranges::find(m_allowed, allowed) != m_allowed.end())
        return;
    m_allowed.push_back(allowed);
    TryOnce(allowed);
}

// With a value that its check does not ask for in each refusing control, or in the other one that the check asks.
TripState Journey::AllowedBy(const std::vector<std::string>& refusing, TripState state) const
{
    const auto allow = [&](const ClytCtrlValList& asked)
    {
        const TripControl* control = m_plan.Find(asked.GetName().GetString());
        if (control == nullptr || !control->isEntered || control->collects)
            return false;
        const auto isAllowed = [&](const std::string& value) { return asked.Contains(value.c_str()) == 0; };
        const auto value = std::ranges::find_if(control->values, isAllowed);
        if (value == control->values.end())
            return false;
        WishOf(m_plan, state, control->name) = {TripWish::Kind::Value, *value};
        return true;
    };
    for (const std::string& name : refusing)
    {
        const EvaluationStatement* check = LastCheckOf(m_plan.Of(), name);
        if (check != nullptr && !allow(check->own))
            allow(check->other);
    }
    return state;
}

std::vector<std::string> Journey::TryOnce(const TripState& state)
{
    const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
    if (form == nullptr)
        return {};
    TripLook& look = m_looks.emplace_back();
    look.opened = ReachedIn(*form);
    form->Enter(state);
    look.reached = ReachedIn(*form);
    const std::optional<TripText> out = form->Compose(lytParentName);
    if (!out)
        return {};
    look.refusing = out->refusing;
    look.line = out->line;
    if (m_plan.ComesBack() && out->line != 0 && out->refusing.empty())
        GoThere(*form, *out, look.reached);
    return out->refusing;
}

void Journey::GoThere(TripForm& form, const TripText& out, const std::set<std::string>& reached)
{
    Trip trip;
    trip.out = out;
    trip.text = ComingBack(out.text, trip.begin);
    trip.before = form.Values();
    trip.reached = reached;
    const std::unique_ptr<TripForm> fresh = m_stage.Open(m_plan, trip.text);
    if (fresh == nullptr)
    {
        if (!m_stage.LastCuts().empty())
            m_traveller.WasRefused(trip, m_stage.LastCuts().back());
        return;
    }
    trip.after = fresh->Values();
    trip.cuts = fresh->Cuts();
    trip.rest = fresh->Rest();
    trip.lastJumps = fresh->LastJumps();
    const std::optional<TripText> again = fresh->Compose(lytParentName);
    size_t ignored = 0;
    if (again)
    {
        trip.again = ComingBack(again->text, ignored);
        trip.againLine = again->line;
    }
    m_traveller.CameBack(trip);
}

std::set<std::string> Journey::ReachedIn(TripForm& form) const
{
    std::set<std::string> reached;
    for (const TripControl& control : m_plan.Controls())
    {
        if (form.IsReached(control.name))
            reached.insert(control.name);
    }
    return reached;
}

// The macros of a group see the dialog's text from the first bracket to the mark.
std::string Journey::ComingBack(const std::string& text, size_t& begin) const
{
    const size_t mark = text.find(lytGroupMark);
    const size_t bracket = text.find('(');
    const bool isOfGroup = m_plan.Named() != nullptr && m_plan.Named()->cut == ClytCut::AtMark;
    begin = isOfGroup && bracket != std::string::npos ? bracket : 0;
    return text.substr(begin, mark != std::string::npos && mark + 1 > begin ? mark + 1 - begin : std::string::npos);
}

// A text that is longer than the input has room for.
void Journey::TryLong(size_t index)
{
    const TripControl& control = m_plan.Controls()[index];
    const int room = control.cutLength;
    if (!control.isEntered || control.mark.empty() || room <= 0 || room >= tripLongest || !m_plan.ComesBack())
        return;
    std::string longer = control.mark;
    while (longer.size() < static_cast<size_t>(room) + 3)
        longer += control.mark;
    // Until it is within reach.
    constexpr size_t turns = 3;
    for (size_t turn = 0; turn < turns; ++turn)
    {
        TripState state = FullState(m_plan, turn);
        state[index] = {TripWish::Kind::Value, longer};
        Try(state);
        if (m_looks.empty() || m_looks.back().reached.contains(control.name))
            return;
    }
}

} // namespace lytdlg
