#include "lytdlg/trip/Locks.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/trip/TripEvidence.h"
#include "lytdlg/trip/TripStates.h"
#include "lytdlg/trip/Waits.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

class LockSearch
{
public:
    LockSearch(TripTeller& findings, TripStage& trialStage, const TripPlan& tried, const std::vector<TripLook>& seen,
               std::set<std::string> lockedBefore)
        : m_teller(findings),
          m_stage(trialStage),
          m_plan(tried),
          m_looks(seen),
          m_waits(tried.Of()),
          m_locked(std::move(lockedBefore))
    {
    }

    void Tell()
    {
        TakeButtons();
        TellStarts();
        TellCircles();
        TellFills();
        if (!TellChecks())
            TellNever();
    }

private:
    const Description& Of() const { return m_plan.Of(); }

    bool IsEverReached(const std::string& name) const
    {
        return std::ranges::any_of(m_looks, [&](const TripLook& look)
                                   { return look.opened.contains(name) || look.reached.contains(name); });
    }

    // A button may show, enable or fill what it names, and a part that a button runs may fill more.
    void TakeButtons()
    {
        for (const ValueStatement& statement : Of().values)
        {
            if (RoleOf(Of(), statement) == Role::Action)
                m_pressed.insert(statement.values.begin(), statement.values.end());
        }
        for (const InputPart& part : Of().inputs)
        {
            for (const ClytDialogInput* statement : part.name != lytParentName ? Records(part.part->GetStatements())
                                                                               : std::vector<const ClytDialogInput*>())
            {
                for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
                    m_pressed.insert(rule->fills.GetHead()->controlName.GetString());
            }
        }
    }

    // ---- What begins out of reach and stays there

    void TellStarts()
    {
        for (const ClytControlStatement& control : Of().controls)
        {
            const ClytType& type = lytTypeOf(KindOf(control));
            const std::string name = control.name.GetString();
            if (name.empty() || type.isDefault || (!type.hasValue && !type.isButton) || IsEverReached(name))
                continue;
            const ControlFacts& facts = Of().Index().FactsOf(name);
            // An option is reached with its group.
            const ClytControlStatement* group = GroupOf(Of(), control);
            const ControlFacts& shared = group != nullptr ? Of().Index().FactsOf(group->name.GetString()) : facts;
            if (HasOption(Of(), name, ClytOption::Inactive) && !facts.isDisabled && !shared.isDisabled)
                TellStart(name, ClytOption::Inactive, "enables", "ACTIVE",
                          "DISPLAYONLY, if the user is only to look at it");
            if (HasOption(Of(), name, ClytOption::Invisible) && !facts.isHidden && !shared.isHidden)
                TellStart(name, ClytOption::Invisible, "shows", "VISIBLE", "HIDDEN, if nobody is to see it");
        }
    }

    void TellStart(const std::string& name, ClytOption option, const char* verb, const char* word, const char* other)
    {
        for (const ValueStatement* statement : StatementsOf(Of(), name, Role::Option))
        {
            if (lytMeaningOf<ClytOption>(statement->values.front().c_str()) != option)
                continue;
            m_locked.insert(name);
            m_teller.Tell("lock-start", Of().PlaceOf(statement->span.line), 0,
                          InQuotes(name) + " begins " + lytTextOf(option) + ", and no rule or button ever " + verb +
                              " it",
                          "add a rule " + InQuotes(name + "/" + word + " = ...") + ", or write " + other);
        }
    }

    // ---- Rules that wait for each other

    // Whether entering them one after the other, in either direction, ends with all of them out of reach.
    bool IsLocked(const std::vector<std::string>& circle) const
    {
        constexpr size_t turns = 3;
        for (size_t turn = 0; turn < turns; ++turn)
        {
            if (IsLockedBy(circle, turn) || IsLockedBy({circle.rbegin(), circle.rend()}, turn))
                return true;
        }
        return false;
    }

    bool IsLockedBy(const std::vector<std::string>& circle, size_t turn) const
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
        if (form == nullptr)
            return false;
        const TripState full = FullState(m_plan, turn);
        TripState others = full;
        for (const std::string& name : circle)
            WishOf(m_plan, others, name) = {};
        form->Enter(others);
        const auto isReached = [&](const std::string& name) { return form->IsReached(name); };
        for (const std::string& name : circle)
        {
            if (std::ranges::none_of(circle, isReached))
                return true;
            TripState one(full.size());
            TripWish& wish = WishOf(m_plan, one, name);
            wish = full[static_cast<size_t>(&wish - one.data())];
            form->Enter(one);
            form->RunRules();
        }
        return std::ranges::none_of(circle, isReached);
    }

    void TellCircles()
    {
        std::set<std::string> seen;
        size_t searches = 0;
        constexpr size_t mostSearches = 200;
        for (const auto& [name, rules] : m_waits.All())
        {
            const TripControl* control = m_plan.Find(name);
            if (seen.contains(name) || control == nullptr || !control->isEntered || ++searches > mostSearches)
                continue;
            const std::set<std::string> waited = m_waits.WaitedForBy(name);
            if (!waited.contains(name))
                continue;
            std::vector<std::string> circle = {name};
            for (const std::string& other : waited)
            {
                if (other != name && m_plan.Find(other) != nullptr && m_waits.WaitedForBy(other).contains(name))
                    circle.push_back(other);
            }
            seen.insert(circle.begin(), circle.end());
            if (circle.size() > 1 && IsLocked(circle))
            {
                m_locked.insert(circle.begin(), circle.end());
                TellCircle(circle);
            }
        }
    }

    void TellCircle(const std::vector<std::string>& circle)
    {
        StateRules rules;
        for (const std::string& name : circle)
        {
            for (const ClytControlDep* rule : m_waits.All().at(name))
            {
                const auto isOf = [&](const ClytCtrlValList* condition)
                { return std::ranges::find(circle, condition->GetName().GetString()) != circle.end(); };
                if (std::ranges::any_of(Records(rule->conditions), isOf))
                    rules.push_back(rule);
            }
        }
        std::ranges::sort(rules, {}, [](const ClytControlDep* rule) { return rule->span.line; });
        if (rules.size() < 2)
            return;
        std::string names;
        for (const std::string& name : circle)
            names += (names.empty() ? "" : name == circle.back() ? " and " : ", ") + InQuotes(name);
        m_teller.Tell("lock-circle", Of().PlaceOf(rules.front()->span.line), rules[1]->span.line,
                      "this rule and that of line " + std::to_string(rules[1]->span.line) + " wait for each other: " +
                          names + " can get out of reach together, and nothing brings them back",
                      "let one of the two rules ask another control, or delete it");
    }

    // ---- A fill that fails

    // The group that a control's library is handed, when one of its conditions names no control.
    const ClytCtrlValList* UnknownIn(const std::string& group) const
    {
        for (const OutputGroup& output : Of().outputs)
        {
            for (const ClytDialogOutput* rule :
                 output.name == group ? Records(output.rules) : std::vector<const ClytDialogOutput*>())
            {
                for (const ClytCtrlValList* condition : Records(rule->conditions))
                {
                    if (Of().FindControl(condition->GetName().GetString()) == nullptr)
                        return condition;
                }
            }
        }
        return nullptr;
    }

    void TellFills()
    {
        for (const ClytControlDep* rule : Records(Of().rules))
        {
            const std::string name = rule->controlName.GetString();
            const ValueStatement* source = LastStatementOf(Of(), name, Role::Source);
            if (rule->stateWord.GetMeaning() != ClytState::Fill || source == nullptr || source->values.size() < 4)
                continue;
            const ClytCtrlValList* unknown = UnknownIn(source->values[3]);
            if (unknown != nullptr && IsOkBlocked(*rule))
                TellFill(*rule, *unknown);
        }
    }

    // The finding about the condition is there already.
    void TellFill(const ClytControlDep& rule, const ClytCtrlValList& unknown)
    {
        for (Finding& finding : m_teller.Judged().findings.All())
        {
            if (finding.rule->id != "output-condition" || finding.place.line != unknown.GetSpan().line)
                continue;
            finding.message += "; once " + InQuotes(rule.conditions.GetHead()->GetName().GetString()) +
                               " has changed, the FILL of line " + std::to_string(rule.span.line) +
                               " fails here, and OK does nothing until it is as it was";
            return;
        }
    }

    // Changes what the rule listens to.
    bool IsOkBlocked(const ClytControlDep& rule)
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
        const std::string trigger = rule.conditions.IsEmpty() ? "" : rule.conditions.GetHead()->GetName().GetString();
        const TripControl* control = m_plan.Find(trigger);
        if (form == nullptr || control == nullptr || control->values.empty())
            return false;
        const std::string present = form->Values().at(trigger);
        const auto other = std::ranges::find_if(control->values, [&](const auto& value) { return value != present; });
        if (other == control->values.end())
            return false;
        TripState state(m_plan.Controls().size());
        WishOf(m_plan, state, trigger) = {TripWish::Kind::Value, *other};
        form->Enter(state);
        return !form->RunRules() && !form->RunRules();
    }

    // ---- Checks of what cannot be reached

    // The input, a default or a library may give a value to what no user reaches.
    bool IsGivenElsewhere(const std::string& name) const
    {
        const TripControl* control = m_plan.Find(name);
        return control == nullptr ||
               (!control->isEntered && (m_plan.IsFilled(name) || control->isListed || !control->preset.empty() ||
                                        control->kind != Kind::Field || Of().Index().FactsOf(name).isFilled));
    }

    bool IsLost(const std::string& name, const TripLook& look) const
    {
        return !look.reached.contains(name) && !m_locked.contains(name) && !IsGivenElsewhere(name) &&
               !m_pressed.contains(name);
    }

    // The control that the refusal is about, when the user cannot give it a value; null when that is possible.
    const TripControl* Missing(const std::string& name, const TripLook& look) const
    {
        const EvaluationStatement* check = LastCheckOf(Of(), name);
        if (check == nullptr)
            return nullptr;
        const std::string other = check->other.GetName().GetString();
        const bool asksOther = !check->own.GetValues().IsEmpty() && check->own.GetValues().GetHead() != "NULL";
        if (!asksOther)
            return IsLost(name, look) ? m_plan.Find(name) : nullptr;
        // The message asks for the other one.
        const bool wantsOther = check->other.Contains("") != 0 && check->own.Contains("") == 0;
        if (wantsOther && IsLost(other, look))
            return m_plan.Find(other);
        return IsLost(name, look) && IsLost(other, look) ? m_plan.Find(name) : nullptr;
    }

    bool TellChecks()
    {
        bool isTold = false;
        for (const TripLook& look : m_looks)
        {
            const auto isOut = [&](const std::string& name) { return Missing(name, look) != nullptr; };
            if (look.refusing.empty() || !std::ranges::all_of(look.refusing, isOut))
                continue;
            isTold = true;
            const TripControl& control = *Missing(look.refusing.front(), look);
            const bool isHidden = !control.isEntered;
            m_teller.Tell(
                "lock-check", LastCheckOf(Of(), look.refusing.front())->own.GetSpan(), 0,
                "this refuses OK while " + InQuotes(control.name) +
                    (isHidden ? " is out of the user's reach at all times"
                              : " is hidden or disabled, and the user cannot give it a value"),
                "check it only where it is shown and enabled: give $OUTPUT a rule for the other case that does "
                "not have it among its items");
        }
        return isTold;
    }

    // A list of a library may hold something else, and the user can choose in a check list.
    bool AreAllTried(const std::string& name) const
    {
        const TripControl* control = m_plan.Find(name);
        return control != nullptr && !control->isListed && !control->values.empty() && !control->collects &&
               control->isEntered && !m_pressed.contains(name);
    }

    void TellNever()
    {
        if (m_looks.empty() || !m_locked.empty() ||
            !std::ranges::all_of(m_looks, [](const TripLook& look) { return !look.refusing.empty(); }))
            return;
        for (const std::string& name : m_looks.front().refusing)
        {
            const auto refuses = [&](const TripLook& look)
            { return std::ranges::find(look.refusing, name) != look.refusing.end(); };
            if (!std::ranges::all_of(m_looks, refuses) || LastCheckOf(Of(), name) == nullptr || !AreAllTried(name))
                continue;
            m_teller.Tell("lock-ok", LastCheckOf(Of(), name)->own.GetSpan(), 0,
                          "OK is refused here with any value of " + InQuotes(name) + ": " +
                              std::to_string(m_looks.size()) + " trials have found no value that passes",
                          "leave at least one value that is allowed");
            return;
        }
    }

    TripTeller& m_teller; // of the caller, as the others are
    TripStage& m_stage;
    const TripPlan& m_plan;
    const std::vector<TripLook>& m_looks;
    const Waits m_waits;
    std::set<std::string> m_pressed; // what buttons reach
    std::set<std::string> m_locked;  // what is out of reach for good, and has a finding
};

} // namespace

void TellLocks(TripTeller& teller, TripStage& stage, const TripPlan& plan, const std::vector<TripLook>& looks,
               std::set<std::string> locked)
{
    LockSearch(teller, stage, plan, looks, std::move(locked)).Tell();
}

} // namespace lytdlg
