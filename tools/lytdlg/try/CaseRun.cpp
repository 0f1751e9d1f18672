#include "lytdlg/try/CaseRun.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "lytdlg/try/Act.h"
#include "lytdlg/try/TrialRun.h"

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

std::string ItemsOf(const ControlState& state)
{
    std::string text;
    for (const ItemState& item : state.items)
    {
        const std::string mark = !lytTypeOf(state.type).hasMarks ? "" : item.isMarked ? "[x] " : "[ ] ";
        text += (text.empty() ? "" : ", ") + Quoted(mark + ToUtf8(item.value));
    }
    return text;
}

std::string StateOf(const ControlState& state, const std::string& expected)
{
    if (expected == "shown" || expected == "visible" || expected == "hidden")
        return !state.isShown ? "hidden" : expected == "visible" ? expected : "shown";
    return state.isEnabled ? "enabled" : "disabled";
}

// The steps of a case, each with the look at what it came to.
class CaseSteps
{
public:
    explicit CaseSteps(CaseResult& caseResult) : m_result(caseResult) {}

    void Take(Trial& trial, const CaseStep& step)
    {
        if (step.isAct)
        {
            TellUnexpected(trial);
            m_lastLine = step.line;
            trial.Do(step.act);
            return;
        }
        m_lastLine = step.line;
        Expectation actual = step.expectation;
        if (!Look(trial, actual))
            m_result.update.replaced[step.line] = "";
        else if (actual.expected != step.expectation.expected)
            m_result.update.replaced[step.line] = Describe(actual);
        if (m_result.update.replaced.contains(step.line))
            m_result.differences.push_back({step.line, Describe(step.expectation), GotOf(actual)});
    }

    // Messages are expected before the next act.
    void TellUnexpected(Trial& trial)
    {
        while (const Event* message = NextMessage(trial))
        {
            const Expectation seen{ExpectationKind::Message, "", ToUtf8(message->text)};
            m_result.update.insertions[m_lastLine].push_back(Describe(seen));
            m_result.differences.push_back({m_lastLine, "", Describe(seen)});
        }
    }

    void Begin(int line) { m_lastLine = line; }
    int LastLine() const { return m_lastLine; }

private:
    const Event* NextMessage(Trial& trial)
    {
        const EventLog& events = trial.Events();
        while (m_nextEvent < events.size())
        {
            const Event& event = events[m_nextEvent++];
            if (event.kind == EventKind::Message)
                return &event;
        }
        return nullptr;
    }

    static std::string GotOf(const Expectation& actual) { return actual.expected == m_nothing ? "" : Describe(actual); }

    // Puts what is seen in place of what is expected; false when there is nothing of the kind.
    bool Look(Trial& trial, Expectation& expectation)
    {
        std::string& text = expectation.expected;
        switch (expectation.kind)
        {
        case ExpectationKind::Message:
        {
            const Event* message = NextMessage(trial);
            text = message != nullptr ? ToUtf8(message->text) : m_nothing;
            return message != nullptr;
        }
        case ExpectationKind::Ending: text = WordOf(trial.PresentEnding()); return true;
        case ExpectationKind::Error: text = trial.Result().failureNumber; return !text.empty();
        case ExpectationKind::Title: text = ToUtf8(trial.State().title); return true;
        case ExpectationKind::Result:
            if (trial.PresentEnding() == Ending::Confirmed)
                text = ToUtf8(trial.Result().text);
            else
                expectation = {ExpectationKind::Ending, "", WordOf(trial.PresentEnding())};
            return true;
        case ExpectationKind::Value:
        case ExpectationKind::State:
        case ExpectationKind::Items: LookAtControl(trial, expectation); return true;
        }
        return false;
    }

    static void LookAtControl(Trial& trial, Expectation& expectation)
    {
        const ControlState& state = StateNamed(trial.State(), expectation.name, expectation.place);
        std::string& text = expectation.expected;
        if (expectation.kind == ExpectationKind::Items)
            text = ItemsOf(state);
        else if (expectation.kind == ExpectationKind::State)
            text = StateOf(state, text);
        else
            text = ToUtf8(lytTypeOf(state.type).hasValue ? state.value.value_or("") : state.caption);
    }

    static constexpr const char* m_nothing = "\x01";

    CaseResult& m_result;
    size_t m_nextEvent = 0;
    int m_lastLine = 0;
};

// The comment that ends a line, with the blanks before it.
std::string CommentOf(const std::string& line)
{
    bool isQuoted = false;
    for (size_t place = 0; place < line.size(); ++place)
    {
        if (line[place] == '\\' && isQuoted)
            ++place;
        else if (line[place] == '"')
            isQuoted = !isQuoted;
        else if (line[place] == '#' && !isQuoted)
            return line.substr(line.find_last_not_of(" \t", place - 1) + 1);
    }
    return "";
}

std::string IndentOf(const std::string& line)
{
    return line.substr(0, std::min(line.find_first_not_of(" \t"), line.size()));
}

void RunSteps(const GoldenCase& one, CaseSteps& steps)
{
    TrialRun run(one.setup, false);
    std::deque<Trial::Step> queue;
    for (const CaseStep& step : one.steps)
        queue.emplace_back([&steps, &step](Trial& trial) { steps.Take(trial, step); });
    queue.emplace_back([&steps](Trial& trial) { steps.TellUnexpected(trial); });
    run.trial.Run(std::move(queue));
}

} // namespace

CaseResult RunCase(const GoldenCase& one)
{
    CaseResult result;
    CaseSteps steps(result);
    steps.Begin(one.line);
    try
    {
        RunSteps(one, steps);
    }
    catch (const std::exception& error)
    {
        result.differences.push_back({steps.LastLine(), "", error.what(), true});
    }
    return result;
}

std::map<int, std::string> DescriptionsOnTop(const GoldenCase& one)
{
    std::map<int, std::string> names;
    std::deque<Trial::Step> steps;
    for (const CaseStep& step : one.steps)
    {
        steps.emplace_back(
            [&](Trial& trial)
            {
                if (const TrialDialog* top = trial.Top())
                    names[step.line] = NameOf(*top);
                if (step.isAct)
                    trial.Do(step.act);
            });
    }
    try
    {
        TrialRun(one.setup, false).trial.Run(std::move(steps));
    }
    catch (const std::exception&)
    {
        return names; // The lines after the one that cannot be carried out are not known.
    }
    return names;
}

std::vector<std::string> Updated(const std::vector<std::string>& lines, const CaseUpdate& update)
{
    std::vector<std::string> updated;
    for (size_t index = 0; index < lines.size(); ++index)
    {
        const int number = static_cast<int>(index) + 1;
        const std::string& line = lines[index];
        const auto replaced = update.replaced.find(number);
        if (replaced == update.replaced.end())
            updated.push_back(line);
        else if (!replaced->second.empty())
            updated.push_back(IndentOf(line) + replaced->second + CommentOf(line));
        if (const auto inserted = update.insertions.find(number); inserted != update.insertions.end())
        {
            for (const std::string& text : inserted->second)
                updated.push_back(IndentOf(line) + text);
        }
    }
    return updated;
}

} // namespace lytdlg
