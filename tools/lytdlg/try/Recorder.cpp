#include "lytdlg/try/Recorder.h"

#include "commandline/Text.h"
#include "controls/ClytPushButtonControl.h"
#include "lytdlg/text/Words.h"
#include "lytdlg/try/ControlState.h"
#include "model/ClytConditionTest.h"

#include <array>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

std::string QuotedUtf8(const CString& text)
{
    return Quoted(ToUtf8(text.GetString()));
}

std::string Name(const CString& name)
{
    return ToUtf8(name.GetString());
}

std::string Listed(const CStringList& values)
{
    std::string text;
    for (const CString& value : values)
        text += (text.empty() ? "" : ", ") + Name(value);
    return text;
}

std::string PresentValue(const ClytCtrlValList& condition)
{
    const std::optional<std::string> value =
        condition.GetControl() != nullptr ? ValueOf(*condition.GetControl()) : std::nullopt;
    return !value ? "has no value" : value->empty() ? "is empty" : "is " + Quoted(ToUtf8(*value));
}

// What a state rule comes to, as a sentence.
std::string Consequence(const RuleRecord& rule)
{
    if (rule.setsNothing)
        return "it sets nothing";
    const char* state =
        rule.word == "ACTIVE" ? (rule.isOn ? " is enabled" : " is disabled") : (rule.isOn ? " is shown" : " is hidden");
    return ToUtf8(rule.control) + state;
}

bool SetsNothing(const ClytControlDep& rule)
{
    const ClytState state = rule.stateWord.GetMeaning();
    return state != ClytState::Active && state != ClytState::Visible &&
           dynamic_cast<const ClytPushButtonControl*>(rule.GetControl()) != nullptr;
}

std::string Joined(const std::vector<TestedCondition>& conditions)
{
    std::string text;
    for (const TestedCondition& condition : conditions)
        text += (text.empty() ? "" : "; ") + condition.text;
    return text.empty() ? "no condition" : text;
}

// What becomes of a piece in a control.
std::string TextOf(const ClytControlFill& fill, const CString& piece)
{
    const ClytControl& control = *fill.GetControl();
    switch (fill.action.GetMeaning())
    {
    case ClytFillAction::Fill: return "is filled by its library";
    case ClytFillAction::Add:
        return dynamic_cast<const CCheckListBox*>(&control) != nullptr
                   ? "is a check list, and does not take the item " + QuotedUtf8(piece)
                   : "takes the item " + QuotedUtf8(piece);
    case ClytFillAction::Modify: return "takes " + QuotedUtf8(piece) + " in place of the chosen item";
    case ClytFillAction::Concat: return "takes the items of " + QuotedUtf8(piece);
    case ClytFillAction::Other: break;
    }
    const CString& value = fill.value.IsEmpty() ? piece : fill.value;
    if (value.IsEmpty())
        return "is handed an empty text";
    const bool isFilled = lytMeans<ClytValueWord::Fill>(value) && dynamic_cast<const CComboBox*>(&control) != nullptr;
    switch (isFilled ? Taking::Taken : TakingOf(control, value))
    {
    case Taking::Taken: break;
    case Taking::Unknown: return "has no value " + QuotedUtf8(value);
    case Taking::OutOfReach: return "cannot be given " + QuotedUtf8(value) + ", one of its last two items";
    }
    return "takes " + QuotedUtf8(value);
}

} // namespace

std::string ClauseOf(const ClytCtrlValList& condition, ClytTested result)
{
    const std::string name = Name(condition.GetName());
    const std::string listed = Listed(condition.GetValues());
    switch (result)
    {
    case ClytTested::Holds:
        return listed.empty() ? name + " is enabled"
                              : name + " " + PresentValue(condition) + ", which is in (" + listed + ")";
    case ClytTested::UnknownControl: return name + " is no control";
    case ClytTested::Inactive: return name + " is disabled";
    case ClytTested::NotListed: return name + " " + PresentValue(condition) + ", which is not in (" + listed + ")";
    case ClytTested::HasContent: return name + " holds something";
    case ClytTested::IsEmpty: return name + " holds nothing";
    case ClytTested::Changed: return name + " has changed: it " + PresentValue(condition);
    case ClytTested::Unchanged: return name + " has not changed";
    }
    return name;
}

void Recorder::Trace(const std::string& text)
{
    if (m_log != nullptr)
        m_log->push_back({EventKind::Trace, std::string(static_cast<size_t>(m_depth) * 2, ' ') + text});
}

void Recorder::LibraryAsked(const ClytControl& control)
{
    Listener::LibraryAsked(control);
    m_asking = control.GetName().GetString();
    m_asked[m_asking].clear();
    Trace("    " + Name(control.GetName()) + " asks its library");
}

void Recorder::PassedOver(ClytPassedOver what, const CString& name, const ClytSpan& place)
{
    constexpr std::array whats = {"type word", "control of a value", "control of a rule", "control of an evaluation",
                                  "control of a fill"};
    Trace(LineText(place) + ": passed over, since there is no " + whats.at(static_cast<size_t>(what)) + " " +
          QuotedUtf8(name));
}

void Recorder::Missed(ClytMissing what, const CString& name, const ClytControl* control, const ClytSpan& place)
{
    constexpr std::array whats = {"button's target",
                                  "double click's target",
                                  "text for the nested dialog",
                                  "output group",
                                  "input part",
                                  "input statement",
                                  "library",
                                  "library function"};
    // The end of the text where no statement was to follow.
    if (what == ClytMissing::InputStatement && name.IsEmpty())
        return;
    const std::string text = std::string("there is no ") + whats.at(static_cast<size_t>(what)) + " " +
                             QuotedUtf8(name) + (control != nullptr ? " for " + Name(control->GetName()) : "");
    if (what == ClytMissing::Library || what == ClytMissing::LibraryFunction)
        m_asked[m_asking] = text;
    Trace(place.line > 0 ? LineText(place) + ": " + text : text);
}

void Recorder::ScanBegan(const char* text)
{
    ++m_scans;
    m_scanned = text;
    m_rest = text;
    m_restText = ToUtf8(text);
    Trace("scan of " + Quoted(m_restText));
}

// What ended the piece: the text between it and the rest. A fixed length has none, nor has the end of the text.
std::string Recorder::SeparatorOf(const ClytDialogInput& statement, const CString& piece, const char* rest,
                                  const CString& nextStatement) const
{
    const ClytScan& scan = statement.scanRule.scan;
    if (scan.GetLength() != 0)
        return piece.GetLength() < scan.GetLength() ? "to the end of the text" : "by its length";
    const std::string consumed(m_rest, rest);
    for (const ClytSeparator& separator : scan.GetSeparators())
    {
        const bool isAtEnd = *rest == '\0' && consumed == piece.GetString() && !separator.text.IsEmpty();
        if (!isAtEnd && separator.target.name == nextStatement && consumed.ends_with(separator.text.GetString()))
            return separator.text.IsEmpty() ? "by the empty separator" : "at " + QuotedUtf8(separator.text);
    }
    return "to the end of the text";
}

void Recorder::Cut(const ClytDialogInput& statement, const CString& piece, const char* rest,
                   const CString& nextStatement)
{
    const std::string separator = SeparatorOf(statement, piece, rest, nextStatement);
    const size_t within = std::string(m_rest, rest).find(piece.GetString());
    const size_t begin = static_cast<size_t>(m_rest - m_scanned) + (within != std::string::npos ? within : 0);
    const auto restAt = static_cast<size_t>(rest - m_scanned);
    m_rest = rest;
    m_restText = ToUtf8(rest);
    m_steps.push_back({&statement, statement.name.GetString(), nextStatement.GetString(), statement.span.line, m_scans,
                       begin, std::min(begin + static_cast<size_t>(piece.GetLength()), restAt), restAt});
    Trace("  " + LineText(statement.span) + " " + Name(statement.name) + ": cut " + QuotedUtf8(piece) + " " +
          separator + ", rest " + Quoted(m_restText) +
          (nextStatement.IsEmpty() ? ", the end" : ", on to " + Name(nextStatement)));
}

void Recorder::Jumped(const ClytDialogInput& statement, const CString& nextStatement)
{
    const auto place = static_cast<size_t>(m_rest - m_scanned);
    m_steps.push_back({&statement, statement.name.GetString(), nextStatement.GetString(), statement.span.line, m_scans,
                       place, place, place});
    std::string clauses;
    for (const ClytCtrlValList& condition : statement.conditions)
        clauses += ClauseOf(condition, lytTest(condition, ClytRuleKind::Input)) + "; ";
    Trace("  " + LineText(statement.span) + " " + Name(statement.name) + ": " + clauses + "on to " +
          Name(nextStatement));
}

void Recorder::Filled(const ClytControlFill& fill, const CString& piece)
{
    const bool ownValue = fill.action.GetMeaning() == ClytFillAction::Other && !fill.value.IsEmpty();
    m_fills.push_back({fill.controlName.GetString(), fill.span.line, TextOf(fill, piece),
                       (ownValue ? fill.value : piece).GetString(), fill.action.GetText().GetString(),
                       m_steps.back().name, m_steps.back().statement, m_steps.size() - 1});
    Trace("    " + LineText(fill.span) + " " + Name(fill.controlName) + " " + m_fills.back().text);
}

void Recorder::ForgetScan()
{
    m_fills.clear();
    m_steps.clear();
}

void Recorder::RunBegan(int depth)
{
    m_tested.clear();
    if (depth == 1 && m_log != nullptr)
        m_runBegin = m_log->size();
    m_depth = depth - 1;
    Trace(depth == 1 ? "rules" : "rules once more, inside this");
}

// A run that comes to the same as the one just before, as one does when the focus moves, is not reported again.
void Recorder::RunEnded(int depth)
{
    m_depth = std::max(depth - 2, 0);
    if (depth != 1 || m_log == nullptr)
        return;
    const auto begin = m_log->begin() + static_cast<std::ptrdiff_t>(m_runBegin);
    std::vector<Event> heard(begin, m_log->end());
    if (m_runBegin == m_runEnd && heard == m_lastRun)
        m_log->erase(begin, m_log->end());
    else
        m_lastRun = std::move(heard);
    m_runEnd = m_log->size();
}

void Recorder::ConditionTested(ClytRuleKind kind, const ClytSpan& rule, const ClytCtrlValList& condition,
                               ClytTested result)
{
    if (kind != ClytRuleKind::Output)
    {
        m_tested.push_back({ClauseOf(condition, result), result});
        return;
    }
    if (result == ClytTested::Holds)
        return;
    m_nextOutput.refusals.push_back({ClauseOf(condition, result), result});
    m_nextOutput.refusedLines.push_back(rule.line);
    Trace("output " + LineText(rule) + ": no, " + m_nextOutput.refusals.back().text);
}

void Recorder::StateSet(const ClytControlDep& rule, int on)
{
    m_rules.push_back({rule.controlName.GetString(), rule.stateWord.GetText().GetString(), rule.span.line,
                       std::exchange(m_tested, {}), on != 0, false, rule.GetControl(), SetsNothing(rule)});
    const RuleRecord& record = m_rules.back();
    Trace("  " + LineText(rule.span) + " " + Name(rule.controlName) + "/" + record.word + ": " +
          Joined(record.conditions) + "; " + Consequence(record));
}

void Recorder::EventDecided(const ClytControlDep& rule, ClytEvent event)
{
    m_rules.push_back({rule.controlName.GetString(), rule.stateWord.GetText().GetString(), rule.span.line,
                       std::exchange(m_tested, {}), event == ClytEvent::Acts, true, rule.GetControl()});
    const RuleRecord& record = m_rules.back();
    const std::string consequence = event == ClytEvent::InProgress       ? "left out, since it is in progress"
                                    : event == ClytEvent::NothingChanged ? "nothing to do"
                                    : record.word == "CLEAR"             ? Name(rule.controlName) + " is emptied"
                                                                         : Name(rule.controlName) + " is filled";
    const std::string clauses = event == ClytEvent::InProgress ? "" : Joined(record.conditions) + "; ";
    Trace("  " + LineText(rule.span) + " " + Name(rule.controlName) + "/" + record.word + ": " + clauses + consequence);
}

void Recorder::OutputChosen(const ClytDialogOutput* rule)
{
    m_output = std::exchange(m_nextOutput, {});
    m_output.line = rule != nullptr ? rule->span.line : 0;
    Trace(rule != nullptr ? "output " + LineText(rule->span) + ": yes" : "output: no rule holds");
}

} // namespace lytdlg
