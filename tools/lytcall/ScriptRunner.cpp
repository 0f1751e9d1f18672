#include "lytcall/ScriptRunner.h"

#include "commandline/Program.h"
#include "commandline/Text.h"
#include "commandline/WholeFile.h"

#include "robot/WindowRobot.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace lytcall
{

using commandline::Quoted;
using commandline::ToUtf8;
using script::Step;

namespace
{

constexpr UINT tickMilliseconds = 5;
constexpr int mostClosings = 100;

ScriptRunner* running = nullptr;

std::vector<Step> StepsOfFile(const std::string& fileName)
{
    if (fileName.empty())
        return {};
    const std::optional<std::string> text = commandline::ReadWholeFile(fileName);
    if (!text)
        script::LineReader(fileName, 1, "").Fail("the script cannot be opened; check its name");
    return ReadScript(fileName, *text, script::Player::OfWindows);
}

} // namespace

ScriptRunner::ScriptRunner(const std::string& scriptFile, std::string pictureFile, int secondsPerStep)
    : m_picture(std::move(pictureFile)),
      m_steps(StepsOfFile(scriptFile)),
      m_patience(static_cast<ULONGLONG>(secondsPerStep) * 1000)
{
    running = this;
    m_stage.savePicture = SavePicture;
    RestartClock();
    m_timer = SetTimer(nullptr, 0, tickMilliseconds, Tick);
}

ScriptRunner::~ScriptRunner()
{
    KillTimer(nullptr, m_timer);
    running = nullptr;
}

void ScriptRunner::Finish()
{
    // The window whose end is waited for may have been the last, and no loop runs after it.
    while (m_failure.empty() && m_next < m_steps.size() && m_steps[m_next].word == "closed")
        ++m_next;
    if (m_failure.empty() && m_next < m_steps.size())
        Fail(m_steps[m_next], "the call came back before this step; look at what the steps before it did");
    if (!m_failure.empty())
        throw std::runtime_error(m_failure);
}

void ScriptRunner::Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    if (running == nullptr)
        return;
    // The platform called this, and nothing may be raised through it.
    try
    {
        running->Run();
    }
    catch (const std::exception& error)
    {
        running->m_failure = error.what();
    }
}

void ScriptRunner::Run()
{
    HWND dialog = robot::ActiveDialog();
    if (!m_failure.empty())
    {
        if (dialog != nullptr)
            Close(dialog);
        return;
    }
    if (dialog != nullptr && !m_picture.empty())
    {
        const std::string picture = std::exchange(m_picture, std::string());
        if (!SavePicture(dialog, picture))
            m_failure = picture + ": error: the picture cannot be saved; check the name of the file";
    }
    if (m_next < m_steps.size())
        TakeStep(m_steps[m_next]);
    else
        WatchEnd();
}

void ScriptRunner::TakeStep(const Step& step)
{
    const script::StepForm& form = FormOf(step);
    if (!form.ready(m_stage, step))
    {
        if (GetTickCount64() > m_deadline)
            Fail(step, ReasonOf(m_stage, step));
        return;
    }
    // Counted first: acting may open a modal loop in which the timer comes back here.
    ++m_next;
    RestartClock();
    try
    {
        form.act(m_stage, step);
    }
    catch (const std::runtime_error& error)
    {
        Fail(step, error.what());
    }
}

// A script that leaves a window open, or a window without a script where nobody sees it, would wait for somebody who is
// not there.
void ScriptRunner::WatchEnd()
{
    if ((m_steps.empty() && HasScreen()) || GetTickCount64() <= m_deadline)
        return;
    HWND dialog = robot::ActiveDialog();
    if (dialog == nullptr)
        RestartClock();
    else if (m_steps.empty())
        m_failure =
            "the window " + Quoted(ToUtf8(robot::TextOf(dialog))) +
            " is open, and there is no screen to show it; give a script with --script, or under Wine set DISPLAY";
    else if (robot::IsMessageBox(dialog))
        Fail(m_steps.back(), "after it a message is open: " + Quoted(ToUtf8(robot::MessageTextOf(dialog))) +
                                 "; answer it with the steps `message` and `answer`");
    else
        Fail(m_steps.back(), "after it the window " + Quoted(ToUtf8(robot::TextOf(dialog))) +
                                 " is still open; end the script with a step that closes it");
}

// Nothing more is expected of the windows: each is closed as soon as it is on top. A call that opens one after the other
// would never come back.
void ScriptRunner::Close(HWND dialog)
{
    const bool isMessage = robot::IsMessageBox(dialog);
    if (++m_closings <= mostClosings)
    {
        PostMessageA(dialog, WM_COMMAND, isMessage ? IDOK : IDCANCEL, 0);
        return;
    }
    const std::string text = Quoted(ToUtf8(isMessage ? robot::MessageTextOf(dialog) : robot::TextOf(dialog)));
    std::fflush(stdout);
    std::fprintf(
        stderr, "lytcall: %s\nlytcall: %s; the call is given up\n", commandline::Printable(m_failure).c_str(),
        (isMessage ? "messages keep coming, the last is " + text : "the window " + text + " does not close").c_str());
    std::_Exit(commandline::Finish("lytcall", 1));
}

void ScriptRunner::Fail(const Step& step, const std::string& reason)
{
    m_failure = step.place + "step `" + step.word + "`: " + reason;
}

void ScriptRunner::RestartClock()
{
    m_deadline = GetTickCount64() + m_patience;
}

} // namespace lytcall
