// Takes the steps of a script on the windows that a call opens, and a picture of the first of them.
//
// A timer of the calling thread fires inside every modal loop, between two messages: a step never runs inside one.
#pragma once

#include "script/Script.h"

#include <windows.h>

#include <string>
#include <vector>

namespace lytcall
{

class ScriptRunner
{
public:
    // Both file names may be empty: then no step is taken, no picture made. Raises FileError for a script that cannot
    // be read.
    ScriptRunner(const std::string& scriptFile, std::string pictureFile, int secondsPerStep);
    ScriptRunner(const ScriptRunner&) = delete;
    ScriptRunner& operator=(const ScriptRunner&) = delete;
    ~ScriptRunner();

    // To be called when the call has come back: raises std::runtime_error when a step failed or was left over.
    void Finish();

private:
    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Run();
    void TakeStep(const script::Step& step);
    void WatchEnd();
    void Close(HWND dialog);
    void Fail(const script::Step& step, const std::string& reason);
    void RestartClock();

    std::string m_picture;
    std::vector<script::Step> m_steps;
    size_t m_next = 0;
    script::Stage m_stage;
    std::string m_failure;
    int m_closings = 0;
    ULONGLONG m_patience;
    ULONGLONG m_deadline = 0;
    UINT_PTR m_timer = 0;
};

// Saves what the window shows, frame included; false when it cannot be drawn or the file cannot be written.
bool SavePicture(HWND window, const std::string& fileName);
// Whether there is a screen on which somebody may look at windows.
bool HasScreen();

} // namespace lytcall
