#include "lytdlg/trip/TripStates.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <bit>

namespace lytdlg
{

namespace
{

// A trial takes time in proportion to the size of the description.
constexpr size_t workOfAll = 12000;
constexpr size_t fewestStates = 4;
constexpr size_t mostStates = 120;
constexpr size_t mostTurns = 24;
constexpr size_t mostEmptiedAlone = 24;

bool IsFree(const TripControl& control)
{
    return control.isEntered && !control.mark.empty();
}

// The input brings an empty text into a field with a default as that default.
bool CanBeEmpty(const TripControl& control)
{
    return IsFree(control) && control.preset.empty();
}

TripWish FullWish(const TripControl& control, size_t turn)
{
    if (control.values.empty())
        return {};
    if (control.collects)
        return {TripWish::Kind::Items, "", (control.values.size() + turn) % (control.values.size() + 1)};
    // Nobody but the input fills it.
    if (!control.isEntered)
        return control.isTaken || control.isAnswered ? TripWish{TripWish::Kind::Value, control.values.front()}
                                                     : TripWish();
    return {TripWish::Kind::Value, control.values[turn % control.values.size()]};
}

size_t SizeOf(const Description& description)
{
    size_t size = description.controls.size() + description.values.size() + Records(description.rules).size();
    for (const InputPart& part : description.inputs)
        size += Records(part.part->GetStatements()).size();
    for (const OutputGroup& group : description.outputs)
        size += Records(group.rules).size();
    return std::max<size_t>(size, 1);
}

class StateMaker
{
public:
    explicit StateMaker(const TripPlan& tried) : m_plan(tried)
    {
        for (const TripControl& control : tried.Controls())
            m_turns = std::max(m_turns, control.values.size() + (control.collects ? 1 : 0));
        m_turns = std::min(m_turns, mostTurns);
        for (const EvaluationStatement& check : tried.Of().evaluations)
        {
            if (check.own.GetValues().GetHead() == lytTextOf(ClytValueWord::Null))
                m_refusedEmpty.insert(check.own.GetName().GetString());
        }
        const size_t affordable = workOfAll / SizeOf(tried.Of());
        m_most = std::clamp(affordable, fewestStates, mostStates);
    }

    std::vector<TripState> Make()
    {
        Add(FullState(m_plan));
        Add(AsItOpens());
        for (const OutputGroup& group : m_plan.Of().outputs)
        {
            if (group.name == lytParentName)
                AddForRules(group);
        }
        for (size_t turn = 0; turn < m_turns; ++turn)
        {
            Add(FullState(m_plan, turn));
            Add(Emptied(FullState(m_plan, turn), [](size_t) { return true; }));
        }
        AddEmptied();
        for (const EvaluationStatement& check : m_plan.Of().evaluations)
            AddForCheck(check.own.GetName().GetString());
        // Of any two controls one takes the next value in one of these, and the other does not.
        const auto bits = static_cast<size_t>(std::bit_width(m_plan.Controls().size()));
        for (size_t turn = 0; turn < m_turns; ++turn)
        {
            for (size_t bit = 0; bit < bits; ++bit)
                Add(Shifted(turn, bit));
        }
        return std::move(m_states);
    }

private:
    void Add(const TripState& state)
    {
        if (m_states.size() < m_most && std::ranges::find(m_states, state) == m_states.end())
            m_states.push_back(state);
    }

    // Fields keep their defaults.
    TripState AsItOpens() const
    {
        TripState state = FullState(m_plan);
        for (size_t index = 0; index < state.size(); ++index)
        {
            const TripControl& control = m_plan.Controls()[index];
            if (!control.preset.empty() || (!control.values.empty() && control.mark.empty() && control.isEntered))
                state[index] = {};
        }
        return state;
    }

    template <class PREDICATE>
    TripState Emptied(TripState state, PREDICATE isEmptied) const
    {
        for (size_t index = 0; index < state.size(); ++index)
        {
            const TripControl& control = m_plan.Controls()[index];
            if (CanBeEmpty(control) && !m_refusedEmpty.contains(control.name) && isEmptied(index))
                state[index] = {TripWish::Kind::Value, ""};
        }
        return state;
    }

    void AddEmptied()
    {
        const size_t count = m_plan.Controls().size();
        if (count <= mostEmptiedAlone)
        {
            for (size_t empty = 0; empty < count; ++empty)
            {
                if (CanBeEmpty(m_plan.Controls()[empty]))
                    Add(Emptied(FullState(m_plan), [&](size_t index) { return index == empty; }));
            }
            return;
        }
        for (size_t bit = 0; bit < static_cast<size_t>(std::bit_width(count)); ++bit)
        {
            for (const size_t side : {0U, 1U})
                Add(Emptied(FullState(m_plan), [&](size_t index) { return ((index >> bit) & 1U) == side; }));
        }
    }

    void AddForRules(const OutputGroup& group)
    {
        constexpr size_t turnsOfRule = 3;
        for (size_t turn = 0; turn < std::min(m_turns, turnsOfRule); ++turn)
            std::ranges::for_each(Records(group.rules), [&](const auto* rule) { AddForRule(*rule, turn); });
    }

    void AddForRule(const ClytDialogOutput& rule, size_t turn)
    {
        TripState state = FullState(m_plan, turn);
        for (const ClytCtrlValList* condition : Records(rule.conditions))
        {
            const std::string name = condition->GetName().GetString();
            const std::vector<std::string> values = ValuesAskedBy(*condition);
            if (m_plan.Find(name) != nullptr && !values.empty())
                WishOf(m_plan, state, name) = {TripWish::Kind::Value, values.front()};
        }
        Add(state);
    }

    // The control is empty, with each value of what decides whether it is shown.
    void AddForCheck(const std::string& name)
    {
        const TripControl* control = m_plan.Find(name);
        for (size_t turn = 0; turn < m_turns && control != nullptr && IsFree(*control); ++turn)
        {
            TripState state = FullState(m_plan, turn);
            WishOf(m_plan, state, name) = {TripWish::Kind::Value, ""};
            Add(state);
        }
    }

    TripState Shifted(size_t turn, size_t bit) const
    {
        TripState state = FullState(m_plan, turn);
        for (size_t index = 0; index < state.size(); ++index)
        {
            if (((index >> bit) & 1U) != 0)
                state[index] = FullWish(m_plan.Controls()[index], turn + 1);
        }
        return state;
    }

    const TripPlan& m_plan;
    std::vector<TripState> m_states;
    std::set<std::string> m_refusedEmpty; // by a check
    size_t m_turns = 1;
    size_t m_most = 0;
};

} // namespace

TripState FullState(const TripPlan& plan, size_t turn)
{
    TripState state;
    for (const TripControl& control : plan.Controls())
        state.push_back(FullWish(control, turn));
    return state;
}

TripWish& WishOf(const TripPlan& plan, TripState& state, const std::string& name)
{
    return state[static_cast<size_t>(plan.Find(name) - plan.Controls().data())];
}

std::vector<TripState> StatesOf(const TripPlan& plan)
{
    return StateMaker(plan).Make();
}

} // namespace lytdlg
