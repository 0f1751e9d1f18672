#include "lytdlg/try/Trial.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "lytdlg/try/Act.h"
#include "lytdlg/try/DialogFacts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lytdlg
{

namespace
{

constexpr UINT patienceInMilliseconds = 60000;

std::string MessageOf(const CException& failure)
{
    constexpr UINT size = 1024;
    std::array<char, size> text{};
    failure.GetErrorMessage(text.data(), size);
    return text.data();
}

// Also by its button.
bool IsOk(const TrialDialog& dialog, const script::Step& act)
{
    if (act.word != "press")
        return act.word == "ok";
    const ClytControl* pressed = TargetOf(dialog, act);
    return pressed != nullptr && lytTypeOf(dialog.TypeOf(*pressed)).kind == ClytKind::Ok;
}

} // namespace

const char* WordOf(Ending ending)
{
    constexpr std::array words = {"not opened", "confirmed", "cancelled", "refused", "open"};
    return words.at(static_cast<size_t>(ending));
}

std::string NameOf(const TrialDialog& dialog)
{
    const std::string& file = dialog.DescriptionFile();
    return commandline::ToUtf8(file.substr(file.find_last_of("\\/") + 1));
}

Trial::Trial(const Setup& setup, EventLog& eventLog)
    : m_surroundings(setup), m_input(setup.input.c_str()), m_robot(patienceInMilliseconds), m_events(eventLog)
{
}

const Outcome& Trial::Run(std::deque<Step> steps)
{
    m_steps = std::move(steps);
    AwaitTurn();
    TrialDialog dialog(m_surroundings.DescriptionFile().c_str(), lytEnvironment.GetDialogDefine(), *this);
    if (const std::optional<CString> result = dialog.Ask(m_input))
        m_outcome.text = result->GetString();
    if (m_failure != nullptr)
        std::rethrow_exception(m_failure);
    if (m_robot.HasGivenUp())
        throw ActError("the dialog does not come to an end; is there a message that comes again and again?");
    // The steps that are left once the dialog is closed cannot act on it, but they may look at the result.
    while (!m_steps.empty())
        TakeStep();
    return m_outcome;
}

void Trial::Opening(TrialDialog& dialog)
{
    if (!m_open.empty())
        m_events.push_back({EventKind::Dialog, "opened " + NameOf(dialog)});
    m_open.push_back(&dialog);
}

void Trial::Closed(TrialDialog& dialog, INT_PTR result)
{
    m_open.pop_back();
    const bool isOutermost = m_open.empty();
    const Ending ended = dialog.IsEnding()    ? (m_hasPressedOk ? Ending::Refused : Ending::Open)
                         : result == IDOK     ? Ending::Confirmed
                         : result == IDCANCEL ? Ending::Cancelled
                                              : Ending::NotOpened;
    if (isOutermost)
        m_outcome.ending = ended;
    else if (!dialog.IsEnding())
    {
        const std::string text =
            ended == Ending::Confirmed
                ? " with " + commandline::Quoted(commandline::ToUtf8(dialog.GetResult().GetString()))
                : "";
        m_events.push_back({EventKind::Dialog, std::string(WordOf(ended)) + " " + NameOf(dialog) + text});
    }
    m_hasPressedOk = m_hasPressedOk && m_isLeaving;
}

void Trial::Failed(const TrialDialog& dialog, const CException& failure)
{
    const auto* own = dynamic_cast<const ClytException*>(&failure);
    m_outcome.failureNumber = own != nullptr ? own->GetNumber().GetString() : "";
    m_outcome.failureMessage = MessageOf(failure);
    m_outcome.failureLine = RefusedLine(dialog.DescriptionFile(), lytEnvironment.GetDialogDefine().GetString());
}

Ending Trial::PresentEnding() const
{
    if (m_open.empty())
        return m_outcome.ending;
    return m_hasPressedOk ? Ending::Refused : Ending::Open;
}

// Arranged before anything is done: what is done may open a window, whose turn comes inside.
void Trial::AwaitTurn()
{
    m_robot.When(
        "window", [] { return robot::ActiveDialog() != nullptr; },
        [this]
        {
            AwaitTurn();
            Turn();
        });
}

void Trial::Turn()
{
    HWND window = robot::ActiveDialog();
    if (robot::IsMessageBox(window))
    {
        Answer(window);
        return;
    }
    if (m_isInStep)
        return;
    try
    {
        if (m_steps.empty() || m_isLeaving)
            LeaveAll();
        else
            TakeStep();
    }
    catch (CException* e)
    {
        m_failure = std::make_exception_ptr(ActError(MessageOf(*e)));
        e->Delete();
        LeaveAll();
    }
    catch (...)
    {
        m_failure = std::current_exception();
        LeaveAll();
    }
}

void Trial::TakeStep()
{
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    m_isInStep = true;
    // On every way out.
    struct Reset
    {
        bool& flag;
        ~Reset() { flag = false; }
    } const reset{m_isInStep};
    step(*this);
}

void Trial::Answer(HWND box)
{
    m_events.push_back({EventKind::Message, robot::MessageTextOf(box)});
    robot::Press(GetDlgItem(box, IDOK));
}

// One dialog a turn, the innermost first; a window without a description, such as the catalogue, is cancelled.
void Trial::LeaveAll()
{
    if (!m_isLeaving && !m_open.empty())
        LookAtAll();
    m_isLeaving = true;
    TrialDialog* top = Top();
    if (top != nullptr)
        top->Leave();
    else
        PostMessageA(robot::ActiveDialog(), WM_COMMAND, IDCANCEL, 0);
}

void Trial::LookAtAll()
{
    m_outcome.states.clear();
    for (const TrialDialog* dialog : m_open)
        m_outcome.states.push_back(LookAt(*dialog));
}

TrialDialog* Trial::Top() const
{
    HWND window = robot::ActiveDialog();
    const auto found = std::ranges::find(m_open, window, [](const TrialDialog* one) { return one->m_hWnd; });
    return found != m_open.end() ? *found : nullptr;
}

const DialogState& Trial::State()
{
    if (!m_open.empty())
        LookAtAll();
    if (m_outcome.states.empty())
        throw ActError("no dialog was opened");
    return m_outcome.states.back();
}

void Trial::Do(const script::Step& act)
{
    if (m_open.empty() && m_outcome.ending == Ending::NotOpened)
        return;
    if (m_open.empty())
        throw ActError(act.place + "the dialog is closed; take what follows away, or do it before");
    // What is about to be closed is seen for the last time.
    if (act.word != "set")
        LookAtAll();
    TrialDialog* top = Top();
    m_hasPressedOk = top == m_open.front() && IsOk(*top, act);
    TakeAct(top, act);
}

std::vector<commandline::OptionForm> TrialOptions(std::vector<commandline::OptionForm> more)
{
    std::vector<commandline::OptionForm> options = {
        {"--input", "TEXT", false, "the text that the dialog takes apart (none)"}};
    std::ranges::copy(ActOptions(), std::back_inserter(options));
    std::ranges::copy(SetupOptions(), std::back_inserter(options));
    std::ranges::move(more, std::back_inserter(options));
    return options;
}

} // namespace lytdlg
