#include "lytdlg/trip/Reach.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/trip/TripEvidence.h"
#include "lytdlg/trip/TripStates.h"
#include "lytdlg/trip/Waits.h"

#include <algorithm>
#include <optional>

namespace lytdlg
{

namespace
{

constexpr size_t turns = 3;

bool Writes(const ClytDialogOutput& rule, const std::string& name)
{
    return std::ranges::any_of(rule.items, [&](const ClytOutputItem& item) { return name == item.text.GetString(); });
}

class ReachSearch
{
public:
    ReachSearch(TripTeller& findings, TripStage& trialStage, const TripPlan& tried, const std::vector<TripLook>& seen)
        : m_teller(findings), m_stage(trialStage), m_plan(tried), m_looks(seen), m_waits(tried.Of())
    {
        for (const ClytDialogOutput* rule : RulesOfResult(Of()))
            m_rules[rule->span.line] = rule;
    }

    OutOfReach Tell()
    {
        for (const TripControl& control : m_plan.Controls())
        {
            if (!control.isEntered || !control.button.empty() || m_waits.RulesOf(control.name).empty() ||
                !CanChooseFor(control.name))
                continue;
            IsEverReached(control.name) ? TellHidden(control.name) : TellUnreached(control.name);
        }
        for (const EvaluationStatement& check : Of().evaluations)
            TellIdle(check);
        return std::move(m_told);
    }

private:
    const Description& Of() const { return m_plan.Of(); }

    bool IsEverReached(const std::string& name) const
    {
        return std::ranges::any_of(m_looks, [&](const TripLook& look)
                                   { return look.reached.contains(name) || look.opened.contains(name); });
    }

    // Whether all that the control waits for can be chosen or entered.
    bool CanChooseFor(const std::string& name) const
    {
        return std::ranges::all_of(m_waits.WaitedForBy(name),
                                   [&](const std::string& waited)
                                   {
                                       const TripControl* control = m_plan.Find(waited);
                                       return control != nullptr && control->isEntered && control->button.empty() &&
                                              !control->isListed && !control->collects && !control->values.empty() &&
                                              waited != name;
                                   });
    }

    // Wishes for what a condition asks for; what is there already stays.
    void Ask(const ClytConditions& conditions, size_t turn, TripState& state, std::set<std::string>& asked) const
    {
        for (const ClytCtrlValList* condition : Records(conditions))
        {
            const std::string name = condition->GetName().GetString();
            const std::vector<std::string> values = ValuesAskedBy(*condition);
            if (m_plan.Find(name) == nullptr || !asked.insert(name).second)
                continue;
            if (!values.empty() && !AsksForContent(*condition))
                WishOf(m_plan, state, name) = {TripWish::Kind::Value, values[turn % values.size()]};
            for (const ClytControlDep* rule : m_waits.RulesOf(name))
                Ask(rule->conditions, turn, state, asked);
        }
    }

    void AskFor(const std::string& name, size_t turn, TripState& state, std::set<std::string>& asked) const
    {
        for (const ClytControlDep* rule : m_waits.RulesOf(name))
            Ask(rule->conditions, turn, state, asked);
    }

    // ---- What no choice brings within reach

    void TellUnreached(const std::string& name)
    {
        const size_t waited = m_waits.WaitedForBy(name).size();
        for (size_t turn = 0; turn < turns; ++turn)
        {
            const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
            TripState state = FullState(m_plan, turn);
            std::set<std::string> asked;
            AskFor(name, turn, state, asked);
            for (size_t pass = 0; form != nullptr && pass <= waited; ++pass)
                form->Enter(state);
            if (form == nullptr || form->IsReached(name))
                return;
        }
        m_told.controls.insert(name);
        m_teller.Tell("rule-never", Of().PlaceOf(m_waits.RulesOf(name).front()->span.line), 0,
                      "no choice brings " + InQuotes(name) +
                          " within reach: what this rule asks for is disabled, or holds something else, in each case",
                      "ask for values that go together");
    }

    // ---- What is written only where it is out of reach

    void TellHidden(const std::string& name)
    {
        const auto isWritten = [&](const TripLook& look)
        {
            const auto rule = m_rules.find(look.line);
            return rule != m_rules.end() && Writes(*rule->second, name);
        };
        const auto isBoth = [&](const TripLook& look) { return isWritten(look) && look.reached.contains(name); };
        const Reading reading = ReadingOf(name);
        if (std::ranges::none_of(m_looks, isWritten) || std::ranges::any_of(m_looks, isBoth) ||
            reading == Reading::Here)
            return;
        for (const auto& [line, rule] : m_rules)
        {
            if (Writes(*rule, name) && IsReachedWhere(*rule, name))
                return;
        }
        const auto written = std::ranges::find_if(m_looks, isWritten);
        if (reading == Reading::Elsewhere)
            m_told.certain.insert(name);
        m_told.controls.insert(name);
        m_teller.Tell("trip-hidden", Of().PlaceOf(m_waits.RulesOf(name).front()->span.line), 0,
                      InQuotes(name) + " is within reach only where no rule writes it: where " +
                          NumberedLine(written->line) + " does, it is hidden or disabled",
                      "ask here for what is chosen when the output writes it");
    }

    bool IsReachedWhere(const ClytDialogOutput& rule, const std::string& name) const
    {
        for (size_t turn = 0; turn < turns; ++turn)
        {
            for (const bool isRuleFirst : {false, true})
            {
                const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
                TripState state = FullState(m_plan, turn);
                std::set<std::string> asked;
                if (isRuleFirst)
                    Ask(rule.conditions, turn, state, asked);
                AskFor(name, turn, state, asked);
                Ask(rule.conditions, turn, state, asked);
                if (form == nullptr)
                    return true;
                form->Enter(state);
                const std::optional<TripText> text = form->Compose(lytParentName);
                if (!text || (text->line == rule.span.line && form->IsReached(name)))
                    return true;
            }
        }
        return false;
    }

    enum class Reading
    {
        Unknown,
        Here,     // where the choice is one that the control's rules ask for: then the output is wrong
        Elsewhere // where they do not
    };

    // Where the input reads the control, as far as its conditions ask for the same choice.
    Reading ReadingOf(const std::string& name) const
    {
        Reading reading = Reading::Unknown;
        const auto parent = std::ranges::find(Of().inputs, lytParentName, &InputPart::name);
        for (const ClytDialogInput* statement : parent != Of().inputs.end() ? Records(parent->part->GetStatements())
                                                                            : std::vector<const ClytDialogInput*>())
        {
            const bool isThen = LeadsTo(m_plan, statement->trueTarget.name.GetString(), name);
            const bool isElse = LeadsTo(m_plan, statement->falseTarget.name.GetString(), name);
            for (const ClytCtrlValList* condition : Records(statement->conditions))
            {
                const std::optional<bool> isAsked = AsksTheSame(name, *condition);
                if (isAsked && isThen != isElse)
                    reading = *isAsked == isThen ? Reading::Here : Reading::Elsewhere;
            }
        }
        return reading;
    }

    // Whether a rule of the control asks for one of the values; nothing when none asks for that choice.
    std::optional<bool> AsksTheSame(const std::string& name, const ClytCtrlValList& condition) const
    {
        const std::vector<std::string> wanted = ValuesAskedBy(condition);
        const auto isWanted = [&](const std::string& value)
        { return std::ranges::find(wanted, value) != wanted.end(); };
        std::optional<bool> asks;
        for (const ClytControlDep* rule : m_waits.RulesOf(name))
        {
            for (const ClytCtrlValList* own : Records(rule->conditions))
            {
                if (own->GetName() == condition.GetName())
                    asks = asks.value_or(false) || std::ranges::any_of(ValuesAskedBy(*own), isWanted);
            }
        }
        return asks;
    }

    // ---- A check that never refuses

    void TellIdle(const EvaluationStatement& check)
    {
        const std::string own = check.own.GetName().GetString();
        const std::string other = check.other.GetName().GetString();
        const auto isItem = [&](const auto& rule) { return Writes(*rule.second, own); };
        if (LastCheckOf(Of(), own) != &check || !IsChosen(own) || !IsChosen(other) ||
            std::ranges::none_of(m_rules, isItem))
            return;
        bool isTried = false;
        for (size_t turn = 0; turn < turns; ++turn)
        {
            if (Refuses(check, turn, isTried))
                return;
        }
        if (isTried)
            m_teller.Tell("evaluation-never", check.own.GetSpan(), 0,
                          "this check never refuses: no rule of the result has " + InQuotes(own) +
                              " among its items where " + InQuotes(other) + " has that value",
                          "ask for a value with which the output writes " + InQuotes(own));
    }

    bool IsChosen(const std::string& name) const
    {
        const TripControl* control = m_plan.Find(name);
        return control != nullptr && control->isEntered && !control->isListed && !control->collects &&
               !control->values.empty();
    }

    // With each pair of values that the check asks for.
    bool Refuses(const EvaluationStatement& check, size_t turn, bool& isTried) const
    {
        const std::string own = check.own.GetName().GetString();
        const std::string other = check.other.GetName().GetString();
        for (const std::string& value : ValuesAskedBy(check.own))
        {
            for (const std::string& otherValue : ValuesAskedBy(check.other))
            {
                const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
                TripState state = FullState(m_plan, turn);
                WishOf(m_plan, state, other) = {TripWish::Kind::Value, otherValue};
                WishOf(m_plan, state, own) = {TripWish::Kind::Value, value};
                if (form == nullptr)
                    return true;
                form->Enter(state);
                const TripValues values = form->Values();
                const std::optional<TripText> text = form->Compose(lytParentName);
                if (!text || std::ranges::find(text->refusing, own) != text->refusing.end())
                    return true;
                isTried = isTried || (values.at(own) == value && values.at(other) == otherValue && text->line != 0);
            }
        }
        return false;
    }

    TripTeller& m_teller; // of the caller, as the others are
    TripStage& m_stage;
    const TripPlan& m_plan;
    const std::vector<TripLook>& m_looks;
    const Waits m_waits;
    std::map<int, const ClytDialogOutput*> m_rules; // of the result, by line
    OutOfReach m_told;
};

} // namespace

OutOfReach TellReach(TripTeller& teller, TripStage& stage, const TripPlan& plan, const std::vector<TripLook>& looks)
{
    return ReachSearch(teller, stage, plan, looks).Tell();
}

} // namespace lytdlg
