#include "lytdlg/try/DialogFacts.h"

#include "commandline/Text.h"
#include "controls/ClytOptionGroup.h"
#include "controls/TypeWords.h"
#include "liveform/UserActs.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/TrialRun.h"

#include <algorithm>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;

std::string InLine(int line)
{
    return " in line " + std::to_string(line);
}

namespace
{

// One of the two things that a rule, a statement or a button can take from a control.
struct Side
{
    const char* lost;                 // what the control is without it
    const char* kept;                 // and with it
    const char* button;               // the button's word
    std::vector<const char*> options; // of $VALUES
};

const Side shownSide = {"hidden", "shown", "VISIBLE", {"HIDDEN", "INVISIBLE"}};
const Side enabledSide = {"disabled", "enabled", "ACTIVE", {"DISPLAYONLY", "INACTIVE"}};

class Explainer
{
public:
    Explainer(const TrialDialog& form, ClytControl& subject, const Recorder& heard)
        : m_dialog(form),
          m_control(subject),
          m_recorder(heard),
          m_facts(FactsOf(form)),
          m_state(LookAt(form, subject)),
          m_group(GroupOf(form, subject))
    {
    }

    std::vector<Sentence> Explain()
    {
        TellState();
        TellSide(shownSide, m_state.isShown);
        TellSide(enabledSide, m_state.isEnabled);
        // An option takes what its group is given.
        if (lytTypeOf(m_state.type).hasValue && m_group == nullptr)
            std::ranges::move(ExplainValue(m_dialog, m_control, m_recorder), std::back_inserter(m_sentences));
        return std::move(m_sentences);
    }

    std::vector<TriedRule> Rules() const
    {
        const RuleRecord* shown = LastRule(shownSide);
        const RuleRecord* enabled = LastRule(enabledSide);
        std::vector<TriedRule> rules;
        for (const RuleRecord& rule : m_recorder.Rules())
        {
            if (!IsAboutThis(rule))
                continue;
            std::erase_if(rules, [&](const TriedRule& before) { return before.record.line == rule.line; });
            rules.push_back({rule, &rule == shown || &rule == enabled});
        }
        return rules;
    }

private:
    void Tell(const std::string& sentence, int line = 0) { m_sentences.push_back({sentence, line}); }

    static ClytControl* GroupOf(const TrialDialog& form, ClytControl& subject)
    {
        for (ClytControl& group : form.GetControlList())
        {
            const std::vector<ClytControl*> options = OptionsOf(group);
            if (std::ranges::find(options, &subject) != options.end())
                return &group;
        }
        return nullptr;
    }

    void TellState()
    {
        const std::string states =
            std::string(m_state.isShown ? "shown" : "hidden") + " and " + (m_state.isEnabled ? "enabled" : "disabled");
        std::string value;
        if (lytTypeOf(m_state.type).hasItems)
            value = !m_state.value ? "; nothing is chosen in it" : "; its value is " + Quoted(ToUtf8(*m_state.value));
        else if (lytTypeOf(m_state.type).hasValue)
            value = m_state.value->empty() ? "; it is empty" : "; its value is " + Quoted(ToUtf8(*m_state.value));
        Tell(ToUtf8(m_state.name) + " is " + states + value + ".");
    }

    // ---- Hidden or disabled

    bool IsAboutThis(const RuleRecord& rule) const
    {
        return rule.target == &m_control || (m_group != nullptr && rule.target == m_group);
    }

    // The rule that set the side last; null when none has.
    const RuleRecord* LastRule(const Side& side) const
    {
        const auto isOfSide = [&](const RuleRecord& rule)
        {
            const bool isActive = rule.word == "ACTIVE";
            return !rule.isEvent && !rule.setsNothing && isActive == (&side == &enabledSide) && IsAboutThis(rule);
        };
        const auto found = std::find_if(m_recorder.Rules().rbegin(), m_recorder.Rules().rend(), isOfSide);
        return found != m_recorder.Rules().rend() ? &*found : nullptr;
    }

    const ValueFact* OptionOf(const Side& side) const
    {
        const ValueFact* found = nullptr;
        for (const char* option : side.options)
        {
            if (found == nullptr)
                found = m_facts.OptionOf(m_state.name, option);
            if (found == nullptr && m_group != nullptr)
                found = m_facts.OptionOf(m_dialog.NameOf(*m_group), option);
        }
        return found;
    }

    void TellSide(const Side& side, bool isKept)
    {
        const RuleRecord* rule = LastRule(side);
        const ValueFact* option = OptionOf(side);
        const ValueFact* button = ButtonFor(side);
        if (rule != nullptr)
            TellRule(*rule, isKept ? side.kept : side.lost);
        else if (!isKept && option != nullptr)
            Tell(std::string("It is ") + side.lost + " by " + Shown(*option) + ", and no rule changes that.",
                 option->line);
        else if (!isKept && button != nullptr)
            Tell(std::string("It is ") + side.lost + " by the button " + ToUtf8(button->name) + InLine(button->line) +
                     ".",
                 button->line);
        else if (!isKept)
            Tell(std::string("It is ") + side.lost + ", and no rule or statement about it says so.");
        if (option != nullptr && (rule != nullptr || isKept))
            Tell(std::string("It begins ") + side.lost + " by " + Shown(*option) + ".", option->line);
    }

    std::string Shown(const ValueFact& option) const
    {
        const std::string ofGroup = option.name != m_state.name ? " of its group " + ToUtf8(option.name) : "";
        return option.values.front() + ofGroup + InLine(option.line);
    }

    void TellRule(const RuleRecord& rule, const char* state)
    {
        std::string reasons;
        for (const TestedCondition& condition : rule.conditions)
            reasons += (reasons.empty() ? ": " : "; ") + condition.text;
        const std::string ofGroup = rule.target != &m_control ? " of its group " + ToUtf8(rule.control) : "";
        Tell(std::string("It is ") + state + " by the rule" + ofGroup + InLine(rule.line) + reasons + ".", rule.line);
    }

    const ValueFact* ButtonFor(const Side& side) const
    {
        const auto found =
            std::ranges::find_if(m_facts.values, [&](const ValueFact& fact)
                                 { return fact.keyword == side.button && fact.values.front() == m_state.name; });
        return found != m_facts.values.end() ? &*found : nullptr;
    }

    const TrialDialog& m_dialog;
    ClytControl& m_control;
    const Recorder& m_recorder;
    DialogFacts m_facts;
    ControlState m_state;
    ClytControl* m_group; // that an option belongs to; null for other controls
    std::vector<Sentence> m_sentences;
};

} // namespace

std::vector<Sentence> Explain(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder)
{
    return Explainer(dialog, control, recorder).Explain();
}

std::vector<TriedRule> RulesAbout(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder)
{
    return Explainer(dialog, control, recorder).Rules();
}

} // namespace lytdlg
