#include "lytdlg/try/Explanation.h"

#include "commandline/Text.h"
#include "controls/ClytOptionGroup.h"
#include "liveform/UserActs.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/TrialRun.h"

#include <algorithm>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

std::string InLine(int line)
{
    return " in line " + std::to_string(line);
}

std::string JoinedNames(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + ToUtf8(name);
    return text;
}

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

// A fill of the input part that runs when the dialog opens.
struct WrittenFill
{
    std::string statement;
    int line = 0;
};

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

    std::vector<std::string> Explain()
    {
        TellState();
        TellSide(shownSide, m_state.isShown);
        TellSide(enabledSide, m_state.isEnabled);
        // An option takes what its group is given.
        if ((HasValue(m_state.type) || HasItems(m_state.type)) && m_group == nullptr)
            TellValue();
        return std::move(m_lines);
    }

private:
    void Tell(const std::string& sentence) { m_lines.push_back(sentence); }

    static ClytControl* GroupOf(const TrialDialog& form, ClytControl& subject)
    {
        for (POSITION place = form.GetControlList().GetHeadPosition(); place != nullptr;)
        {
            ClytControl* group = form.GetControlList().GetNext(place);
            const std::vector<ClytControl*> options = OptionsOf(form, *group);
            if (std::ranges::find(options, &subject) != options.end())
                return group;
        }
        return nullptr;
    }

    void TellState()
    {
        const std::string states =
            std::string(m_state.isShown ? "shown" : "hidden") + " and " + (m_state.isEnabled ? "enabled" : "disabled");
        std::string value;
        if (HasItems(m_state.type))
            value = !m_state.value ? "; nothing is chosen in it" : "; its value is " + Quoted(ToUtf8(*m_state.value));
        else if (HasValue(m_state.type))
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
            Tell(std::string("It is ") + side.lost + " by " + Shown(*option) + ", and no rule changes that.");
        else if (!isKept && button != nullptr)
            Tell(std::string("It is ") + side.lost + " by the button " + ToUtf8(button->name) + InLine(button->line) +
                 ".");
        else if (!isKept)
            Tell(std::string("It is ") + side.lost + ", and no rule or statement about it says so.");
        if (option != nullptr && (rule != nullptr || isKept))
            Tell(std::string("It begins ") + side.lost + " by " + Shown(*option) + ".");
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
        Tell(std::string("It is ") + state + " by the rule" + ofGroup + InLine(rule.line) + reasons + ".");
    }

    const ValueFact* ButtonFor(const Side& side) const
    {
        const auto found =
            std::ranges::find_if(m_facts.values, [&](const ValueFact& fact)
                                 { return fact.keyword == side.button && fact.values.front() == m_state.name; });
        return found != m_facts.values.end() ? &*found : nullptr;
    }

    // ---- Empty

    void TellValue()
    {
        TellFills();
        TellEvents();
        TellLibrary();
        if (!HasItems(m_state.type) || m_state.value || m_state.items.empty())
            return;
        const FillRecord* last = LastFill();
        if (last != nullptr && IsAmongLastTwo(last->value))
            Tell("An input cannot choose one of the last two items of a list, and " + Quoted(ToUtf8(last->value)) +
                 " is one of them.");
    }

    const FillRecord* LastFill() const
    {
        const auto& fills = m_recorder.Fills();
        const auto found = std::find_if(fills.rbegin(), fills.rend(),
                                        [&](const FillRecord& fill) { return fill.control == m_state.name; });
        return found != fills.rend() ? &*found : nullptr;
    }

    bool IsAmongLastTwo(const std::string& value) const
    {
        const std::vector<ItemState>& items = m_state.items;
        const size_t first = items.size() > 2 ? items.size() - 2 : 0;
        return std::any_of(items.begin() + static_cast<std::ptrdiff_t>(first), items.end(),
                           [&](const ItemState& item) { return item.value == value; });
    }

    void TellFills()
    {
        bool isFilled = false;
        for (const FillRecord& fill : m_recorder.Fills())
        {
            if (fill.control != m_state.name)
                continue;
            const bool isEmptyText = m_state.type == "TextBox" && fill.action.empty() && fill.value.empty();
            Tell("The scan came to it" + InLine(fill.line) + " (statement " + ToUtf8(fill.statement) + "): it " +
                 fill.text + (isEmptyText ? ", which changes nothing." : "."));
            isFilled = true;
        }
        if (isFilled)
            return;
        const std::vector<WrittenFill> written = WrittenFills();
        if (written.empty())
            Tell("No statement of the input part parent fills it.");
        for (const WrittenFill& fill : written)
            TellUnused(fill);
    }

    void TellUnused(const WrittenFill& fill)
    {
        const std::string place =
            "The statement " + ToUtf8(fill.statement) + InLine(fill.line) + " would fill it, but ";
        if (std::ranges::find(m_recorder.Reached(), fill.statement) != m_recorder.Reached().end())
            Tell(place + "a condition before the fill did not hold for its piece.");
        else
            Tell(place + "the scan did not come there. It went through " + JoinedNames(m_recorder.Reached()) +
                 (m_recorder.LastStatement().empty() ? " and ended with the text."
                                                     : " and on to " + ToUtf8(m_recorder.LastStatement()) + "."));
    }

    std::vector<WrittenFill> WrittenFills() const
    {
        ClytInputPart* part = nullptr;
        m_dialog.GetInputMap().Lookup(lytParentName, part);
        std::vector<WrittenFill> fills;
        for (POSITION place = part->GetStatements().GetHeadPosition(); place != nullptr;)
        {
            const ClytDialogInput& statement = *part->GetStatements().GetNext(place);
            const auto& rules = statement.scanRule.rules;
            for (POSITION at = rules.GetHeadPosition(); at != nullptr;)
                AddFills(statement, *rules.GetNext(at), fills);
        }
        return fills;
    }

    void AddFills(const ClytDialogInput& statement, const ClytConditionFill& rule,
                  std::vector<WrittenFill>& fills) const
    {
        for (POSITION place = rule.fills.GetHeadPosition(); place != nullptr;)
        {
            const ClytControlFill& fill = *rule.fills.GetNext(place);
            if (m_state.name == fill.controlName.GetString())
                fills.push_back({statement.name.GetString(), fill.span.line});
        }
    }

    void TellEvents()
    {
        for (const RuleRecord& rule : m_recorder.Rules())
        {
            if (rule.isEvent && rule.isOn && IsAboutThis(rule))
                Tell(std::string("It was ") + (rule.word == "CLEAR" ? "emptied" : "filled") + " by the rule" +
                     InLine(rule.line) + ": " + rule.conditions.back().text + ".");
        }
    }

    void TellLibrary()
    {
        const ValueFact* source = m_facts.StatementOf(m_state.name, "FILLEDBY");
        if (source == nullptr)
            return;
        const std::string library =
            "the library " + ToUtf8(source->values.front()) + " of line " + std::to_string(source->line);
        const auto asked = m_recorder.Asked().find(m_state.name);
        if (asked == m_recorder.Asked().end())
            Tell("Nothing has asked " + library + ": fill it by an input statement, a rule or a button.");
        else
            Tell("It has asked " + library + (asked->second.empty() ? "." : ": " + asked->second + "."));
    }

    const TrialDialog& m_dialog;
    ClytControl& m_control;
    const Recorder& m_recorder;
    DialogFacts m_facts;
    ControlState m_state;
    ClytControl* m_group; // that an option belongs to; null for other controls
    std::vector<std::string> m_lines;
};

} // namespace

std::vector<std::string> Explain(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder)
{
    return Explainer(dialog, control, recorder).Explain();
}

} // namespace lytdlg
