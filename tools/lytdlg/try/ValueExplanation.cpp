#include "lytdlg/try/DialogFacts.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/TrialRun.h"

#include <algorithm>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

// A fill as the description has it.
struct WrittenFill
{
    std::string statement;
    int line = 0;
};

class ValueExplainer
{
public:
    ValueExplainer(const TrialDialog& form, ClytControl& subject, const Recorder& heard)
        : m_control(subject),
          m_recorder(heard),
          m_facts(FactsOf(form)),
          m_state(LookAt(form, subject)),
          m_statements(StatementsOf(form, {lytParentName})),
          m_allStatements(StatementsOf(form, m_facts.parts))
    {
    }

    std::vector<Sentence> Explain()
    {
        TellFills();
        if (!m_state.lostText.empty())
            Tell("Now " + DescribeLostText(m_state) + ".");
        TellEvents();
        TellLibrary();
        return std::move(m_sentences);
    }

private:
    void Tell(const std::string& sentence, int line = 0) { m_sentences.push_back({sentence, line}); }

    using Statements = std::vector<const ClytDialogInput*>;

    static Statements StatementsOf(const TrialDialog& form, const std::vector<std::string>& parts)
    {
        Statements statements;
        for (const std::string& name : parts)
        {
            ClytInputPart* part = nullptr;
            if (!form.GetInputMap().Lookup(name.c_str(), part))
                continue;
            for (const ClytDialogInput& statement : part->GetStatements())
                statements.push_back(&statement);
        }
        return statements;
    }

    static bool Has(const Statements& statements, const ClytDialogInput* statement)
    {
        return std::ranges::find(statements, statement) != statements.end();
    }

    // A dialog below or above this one may have a control of the same name.
    bool IsAboutThis(const FillRecord& fill) const
    {
        return fill.control == m_state.name && Has(m_allStatements, fill.source);
    }

    void TellFills()
    {
        bool isFilled = false;
        for (const FillRecord& fill : m_recorder.Fills())
        {
            if (!IsAboutThis(fill))
                continue;
            const bool isEmptyText =
                lytTypeOf(m_state.type).kind == ClytKind::Field && fill.action.empty() && fill.value.empty();
            Tell("The scan came to it" + InLine(fill.line) + " (statement " + ToUtf8(fill.statement) + "): it " +
                     fill.text + (isEmptyText ? ", which changes nothing." : "."),
                 fill.line);
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
        std::string way;
        std::string next;
        for (const ScanStep& step : m_recorder.Steps())
        {
            if (!Has(m_statements, step.statement))
                continue;
            if (step.name == fill.statement)
            {
                Tell(place + "a condition before the fill did not hold for its piece.", fill.line);
                return;
            }
            way += (way.empty() ? "" : ", ") + ToUtf8(step.name);
            next = step.next;
        }
        const std::string end = next.empty() ? "ended with the text." : "on to " + ToUtf8(next) + ".";
        Tell(place + "the scan did not come there. It went through " + way + " and " + end, fill.line);
    }

    std::vector<WrittenFill> WrittenFills() const
    {
        std::vector<WrittenFill> fills;
        for (const ClytDialogInput* statement : m_statements)
        {
            for (const ClytConditionFill& rule : statement->scanRule.rules)
                AddFills(*statement, rule, fills);
        }
        return fills;
    }

    void AddFills(const ClytDialogInput& statement, const ClytConditionFill& rule,
                  std::vector<WrittenFill>& fills) const
    {
        for (const ClytControlFill& fill : rule.fills)
        {
            if (m_state.name == fill.controlName.GetString())
                fills.push_back({statement.name.GetString(), fill.span.line});
        }
    }

    void TellEvents()
    {
        for (const RuleRecord& rule : m_recorder.Rules())
        {
            if (rule.isEvent && rule.isOn && rule.target == &m_control)
                Tell(std::string("It was ") + (rule.word == "CLEAR" ? "emptied" : "filled") + " by the rule" +
                         InLine(rule.line) + ": " + rule.conditions.back().text + ".",
                     rule.line);
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
            Tell("Nothing has asked " + library + ": fill it by an input statement, a rule or a button.", source->line);
        else
            Tell("It has asked " + library + (asked->second.empty() ? "." : ": " + asked->second + "."), source->line);
    }

    const ClytControl& m_control;
    const Recorder& m_recorder;
    DialogFacts m_facts;
    ControlState m_state;
    Statements m_statements;    // of the part that runs when the dialog opens
    Statements m_allStatements; // of every part
    std::vector<Sentence> m_sentences;
};

} // namespace

std::vector<Sentence> ExplainValue(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder)
{
    return ValueExplainer(dialog, control, recorder).Explain();
}

} // namespace lytdlg
