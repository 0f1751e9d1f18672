#include "lytcall/ScriptRunner.h"

#include "commandline/OwnedFile.h"
#include "commandline/Text.h"
#include "lytcall/Picture.h"

#include "robot/WindowRobot.h"

#include <cstdlib>
#include <utility>

namespace lytcall
{

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

constexpr UINT tickMilliseconds = 5;

ScriptRunner* running = nullptr;

std::vector<Step> StepsOfFile(const std::string& fileName)
{
    if (fileName.empty())
        return {};
    const commandline::OwnedFile file(std::fopen(fileName.c_str(), "rb"));
    if (file == nullptr)
        throw ScriptError(fileName, 1, 1, "the script cannot be opened; check its name");
    std::string text;
    for (int ch = std::fgetc(file.get()); ch != EOF; ch = std::fgetc(file.get()))
        text += static_cast<char>(ch);
    return ReadScript(fileName, text);
}

} // namespace

ScriptRunner::ScriptRunner(const std::string& scriptFile, std::string pictureFile, int secondsPerStep)
    : m_file(scriptFile),
      m_picture(std::move(pictureFile)),
      m_steps(StepsOfFile(scriptFile)),
      m_unseen(std::getenv("LYT_UNSEEN") != nullptr),
      m_patience(static_cast<ULONGLONG>(secondsPerStep) * 1000)
{
    running = this;
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
        // Nothing more is expected of the windows: each is closed as soon as it is on top.
        if (dialog != nullptr)
            PostMessageA(dialog, WM_COMMAND, robot::IsMessageBox(dialog) ? IDOK : IDCANCEL, 0);
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
    const StepAction& action = ActionOf(step);
    if (!action.ready(m_stage, step))
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
        action.act(m_stage, step);
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
    if ((m_steps.empty() && !m_unseen) || GetTickCount64() <= m_deadline)
        return;
    HWND dialog = robot::ActiveDialog();
    if (dialog == nullptr)
        RestartClock();
    else if (m_steps.empty())
        m_failure = "the window " + Quoted(ToUtf8(robot::TextOf(dialog))) +
                    " is open, and there is no screen to show it; set DISPLAY, or give a script with --script";
    else if (robot::IsMessageBox(dialog))
        Fail(m_steps.back(), "after it a message is open: " + Quoted(ToUtf8(robot::MessageTextOf(dialog))) +
                                 "; answer it with the steps `message` and `answer`");
    else
        Fail(m_steps.back(), "after it the window " + Quoted(ToUtf8(robot::TextOf(dialog))) +
                                 " is still open; end the script with a step that closes it");
}

void ScriptRunner::Fail(const Step& step, const std::string& reason)
{
    m_failure = ScriptError(m_file, step.line, step.column, "step `" + step.word + "`: " + reason).what();
}

void ScriptRunner::RestartClock()
{
    m_deadline = GetTickCount64() + m_patience;
}

} // namespace lytcall
