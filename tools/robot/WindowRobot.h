// Drives the live windows of this thread as a user would, from inside the process.
//
// The functions look at windows and post what keyboard and mouse would send. Robot runs steps: a thread timer fires in
// every modal loop (dialog, nested dialog, message box), between two messages, so that a step never runs inside one
// and no second thread is needed.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

// A macro of the platform's common dialogs, which not every includer of windows.h takes along.
#undef ReplaceText

namespace robot
{

// The topmost visible, enabled dialog or message box of this thread, or null.
HWND ActiveDialog();
std::string TextOf(HWND window);
std::string ClassOf(HWND window);
// The rectangle of a child in the client area of its parent.
RECT PlaceOf(HWND child);
// True when the window is a message box; its text is MessageTextOf.
bool IsMessageBox(HWND window);
std::string MessageTextOf(HWND box);

// Code that answers message boxes as they come would not notice that they never end. So each act of a user begins here, and
// the boxes that it leads to are answered here: more of them than an act sends commands raise a std::runtime_error.
inline constexpr int mostBoxesOfAct = 5;
void BeginAct();
void AnswerBox(HWND box, int most = mostBoxesOfAct);

// The children of a dialog in the order of their creation.
std::vector<HWND> ChildrenOf(HWND dialog);
// The n-th (from 0) child, or the n-th child of a class (compared without case), or null.
HWND ChildAt(HWND dialog, size_t index);
HWND ChildOfClass(HWND dialog, const std::string& windowClass, size_t index = 0);
// The first child with that window text, or null.
HWND ChildWithText(HWND dialog, const std::string& text);

void Focus(HWND control);
// Keys go to the window that has the focus, through the dialog's own key handling.
void PressKey(UINT virtualKey);
void TypeText(const std::string& text);
// Keys of the keyboard itself. Unlike posted ones they also change the key state of the thread that takes them, and they
// wait in one queue: what a key releases goes to the window that has the focus by then.
void HoldKey(UINT virtualKey);
void ReleaseKey(UINT virtualKey);
// As this thread has seen it.
bool IsKeyHeld(UINT virtualKey);
// The letter of an access key, as with Alt held down.
void PressMnemonic(char letter);
// A click with the mouse in the middle of a control; Press clicks a button without the mouse.
void Click(HWND control);
void ClickAt(HWND window, int x, int y);
void DoubleClickAt(HWND window, int x, int y);
void Press(HWND button);
// Replaces the text of an edit field (or of a combo box's) as if it were typed.
void ReplaceText(HWND edit, const std::string& text);
// Selects an item of a list or combo box and tells the dialog, as a click on it does.
void SelectItem(HWND list, int index);
std::vector<std::string> ItemsOf(HWND list);
int SelectedItemOf(HWND list);
std::string LabelOf(HWND tree, HTREEITEM item);

class Robot
{
public:
    // Gives up after the limit times LYT_PATIENCE: closes every dialog of the thread, so that the call under test comes back.
    explicit Robot(UINT limitInMilliseconds = 20000);
    Robot(const Robot&) = delete;
    Robot& operator=(const Robot&) = delete;
    ~Robot();

    // Once a dialog with this caption ("" is any) is the active one, acts on it.
    Robot& On(const std::string& caption, std::function<void(HWND)> act);
    // Once the condition holds, acts. The condition is asked between messages.
    Robot& When(const std::string& name, std::function<bool()> ready, std::function<void()> act);
    // Once a message box is the active window, keeps its text in Messages and presses a button (IDOK, IDYES, ...).
    Robot& AnswerMessage(int button = IDOK);

    // Answers every message box as it comes, so many of them for an act at most.
    Robot& AnswerAll(int most = mostBoxesOfAct);

    // True when every step was taken in time.
    bool Done() const { return m_steps.empty() && !m_timedOut; }
    // True when it closed the dialogs itself.
    bool HasGivenUp() const { return m_timedOut; }
    const std::vector<std::string>& Messages() const { return m_messages; }
    // The steps taken, and where it gave up.
    const std::string& Log() const { return m_log; }

private:
    struct Step
    {
        std::string name;
        std::function<bool()> ready;
        std::function<void()> act;
    };

    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Run();
    void GiveUp();

    std::deque<Step> m_steps;
    std::vector<std::string> m_messages;
    std::string m_log;
    UINT_PTR m_timer = 0;
    ULONGLONG m_deadline = 0;
    bool m_timedOut = false;
    Robot* m_previous; // a robot may be started while another waits
};

} // namespace robot
