#include "lytcall/StepActions.h"

#include "commandline/Text.h"
#include "lytcall/Controls.h"
#include "lytcall/Picture.h"
#include "lytcall/TreeItems.h"

#include "robot/WindowRobot.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace lytcall
{

using commandline::PrintNumber;
using commandline::PrintText;
using commandline::Quoted;
using commandline::ToAnsi;
using commandline::ToUtf8;

namespace
{

// Left of this, a click on an item of a check list meets its mark.
constexpr int markX = 6;

HWND ControlOf(const Step& step)
{
    HWND dialog = robot::ActiveDialog();
    return dialog != nullptr && !robot::IsMessageBox(dialog) ? FindControl(dialog, step.target) : nullptr;
}

std::string ArgumentOf(const Step& step)
{
    return step.arguments.empty() ? "" : step.arguments.front();
}

std::string LabelOf(const Step& step)
{
    return step.word + " " + NameOf(step.target);
}

bool IsCombo(HWND control)
{
    return TypeOf(control) == "combo";
}

// ---- Conditions

bool Always(const Stage& /*stage*/, const Step& /*step*/)
{
    return robot::ActiveDialog() != nullptr;
}

bool HasWindow(const Stage& /*stage*/, const Step& step)
{
    HWND dialog = robot::ActiveDialog();
    return dialog != nullptr && !robot::IsMessageBox(dialog) &&
           (step.arguments.empty() || robot::TextOf(dialog) == ToAnsi(step.arguments.front()));
}

bool IsClosed(const Stage& stage, const Step& /*step*/)
{
    return !IsWindow(stage.window);
}

bool HasMessage(const Stage& /*stage*/, const Step& step)
{
    HWND box = robot::ActiveDialog();
    return box != nullptr && robot::IsMessageBox(box) &&
           (step.arguments.empty() || robot::MessageTextOf(box) == ToAnsi(step.arguments.front()));
}

bool HasControl(const Stage& /*stage*/, const Step& step)
{
    return ControlOf(step) != nullptr;
}

bool IsUsable(const Stage& /*stage*/, const Step& step)
{
    HWND control = ControlOf(step);
    return control != nullptr && IsWindowEnabled(control) && IsWindowVisible(control);
}

bool HasItem(const Stage& stage, const Step& step)
{
    RECT place = {};
    return IsUsable(stage, step) &&
           (step.arguments.empty() || (IsCombo(ControlOf(step)) ? ItemIndex(ControlOf(step), ArgumentOf(step)) >= 0
                                                                : ItemPlace(ControlOf(step), ArgumentOf(step), place)));
}

bool Agrees(const Stage& /*stage*/, const Step& step)
{
    HWND control = ControlOf(step);
    if (control == nullptr)
        return false;
    return step.isState ? HasState(control, ArgumentOf(step)) : ReadControl(control) == ToAnsi(ArgumentOf(step));
}

// ---- Actions

void MeetWindow(Stage& stage, const Step& /*step*/)
{
    stage.window = robot::ActiveDialog();
    PrintText("window", robot::TextOf(stage.window));
}

void Nothing(Stage& /*stage*/, const Step& /*step*/) {}

void PrintMessage(Stage& /*stage*/, const Step& /*step*/)
{
    PrintText("message", robot::MessageTextOf(robot::ActiveDialog()));
}

void Answer(Stage& /*stage*/, const Step& step)
{
    const std::vector<std::string>& words = ButtonWords();
    const std::string word = step.arguments.empty() ? "ok" : step.arguments.front();
    // The identifiers of the buttons follow one another in the order of the words.
    const int id = IDOK + static_cast<int>(std::ranges::find(words, word) - words.begin());
    robot::Press(GetDlgItem(robot::ActiveDialog(), id));
}

void MoveFocus(Stage& /*stage*/, const Step& step)
{
    robot::Focus(ControlOf(step));
}

void Type(Stage& /*stage*/, const Step& step)
{
    robot::Focus(ControlOf(step));
    SendMessageA(GetFocus(), EM_SETSEL, 0, -1);
    const std::string text = ToAnsi(ArgumentOf(step));
    if (text.empty())
        robot::PressKey(VK_DELETE);
    robot::TypeText(text);
}

void Append(Stage& /*stage*/, const Step& step)
{
    robot::Focus(ControlOf(step));
    const auto length = static_cast<WPARAM>(GetWindowTextLengthA(GetFocus()));
    SendMessageA(GetFocus(), EM_SETSEL, length, static_cast<LPARAM>(length));
    robot::TypeText(ToAnsi(ArgumentOf(step)));
}

void Enter(Stage& /*stage*/, const Step& step)
{
    robot::TypeText(ToAnsi(ArgumentOf(step)));
}

void PressKey(Stage& /*stage*/, const Step& step)
{
    static const UINT keys[] = {VK_TAB,  VK_RETURN, VK_ESCAPE, VK_SPACE, VK_UP,     VK_DOWN, VK_LEFT, VK_RIGHT,
                                VK_HOME, VK_END,    VK_PRIOR,  VK_NEXT,  VK_DELETE, VK_BACK, VK_F4};
    const std::string& word = step.arguments.front();
    if (word.starts_with("alt+"))
    {
        robot::PressMnemonic(word.back());
        return;
    }
    const auto index = static_cast<size_t>(std::ranges::find(KeyWords(), word) - KeyWords().begin());
    for (int times = step.arguments.size() > 1 ? std::stoi(step.arguments[1]) : 1; times > 0; --times)
        robot::PressKey(keys[index]);
}

void Press(Stage& /*stage*/, const Step& step)
{
    robot::Click(ControlOf(step));
}

void Select(Stage& /*stage*/, const Step& step)
{
    HWND control = ControlOf(step);
    if (IsCombo(control))
    {
        robot::SelectItem(control, ItemIndex(control, ArgumentOf(step)));
        return;
    }
    RECT place = {};
    ItemPlace(control, ArgumentOf(step), place);
    // Right of the middle: a click on the left end would meet the mark of a check list.
    robot::ClickAt(control, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void DoubleClick(Stage& /*stage*/, const Step& step)
{
    HWND control = ControlOf(step);
    RECT place = {};
    GetClientRect(control, &place);
    if (!step.arguments.empty())
        ItemPlace(control, ArgumentOf(step), place);
    robot::DoubleClickAt(control, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void SetMark(const Step& step, bool checked)
{
    HWND control = ControlOf(step);
    if (step.arguments.empty())
    {
        if (HasState(control, "checked") != checked)
            robot::Click(control);
        return;
    }
    RECT place = {};
    ItemPlace(control, ArgumentOf(step), place);
    if (IsItemChecked(control, ItemIndex(control, ArgumentOf(step))) != checked)
        robot::ClickAt(control, place.left + markX, (place.top + place.bottom) / 2);
}

void Check(Stage& /*stage*/, const Step& step)
{
    SetMark(step, true);
}

void Uncheck(Stage& /*stage*/, const Step& step)
{
    SetMark(step, false);
}

void Drop(Stage& /*stage*/, const Step& step)
{
    SendMessageA(ControlOf(step), CB_SHOWDROPDOWN, TRUE, 0);
}

void Lift(Stage& /*stage*/, const Step& step)
{
    SendMessageA(ControlOf(step), CB_SHOWDROPDOWN, FALSE, 0);
}

void SetBranch(const Step& step, UINT change)
{
    HWND tree = ControlOf(step);
    HTREEITEM item = FindTreeItem(tree, ToAnsi(ArgumentOf(step)));
    SendMessageA(tree, TVM_EXPAND, change, reinterpret_cast<LPARAM>(item));
}

void Expand(Stage& /*stage*/, const Step& step)
{
    SetBranch(step, TVE_EXPAND);
}

void Collapse(Stage& /*stage*/, const Step& step)
{
    SetBranch(step, TVE_COLLAPSE);
}

void Resize(Stage& /*stage*/, const Step& step)
{
    SetWindowPos(robot::ActiveDialog(), nullptr, 0, 0, std::stoi(step.arguments[0]), std::stoi(step.arguments[1]),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Read(Stage& /*stage*/, const Step& step)
{
    PrintText(LabelOf(step), ReadControl(ControlOf(step)));
}

void PrintItems(Stage& /*stage*/, const Step& step)
{
    const std::vector<std::string> items = ReadItems(ControlOf(step));
    PrintNumber(LabelOf(step), static_cast<int>(items.size()));
    for (const std::string& item : items)
        PrintText("  item", item);
}

void Show(Stage& /*stage*/, const Step& /*step*/)
{
    for (const std::string& line : DescribeControls(robot::ActiveDialog()))
        std::printf("%s\n", line.c_str());
}

void Shoot(Stage& /*stage*/, const Step& step)
{
    if (!SavePicture(robot::ActiveDialog(), ToAnsi(ArgumentOf(step))))
        throw std::runtime_error("the picture " + Quoted(ArgumentOf(step)) +
                                 " cannot be saved; check its folder and name");
}

const StepAction actions[] = {
    {"window", HasWindow, MeetWindow},
    {"closed", IsClosed, Nothing},
    {"message", HasMessage, PrintMessage},
    {"answer", HasMessage, Answer},
    {"focus", IsUsable, MoveFocus},
    {"type", IsUsable, Type},
    {"append", IsUsable, Append},
    {"enter", Always, Enter},
    {"key", Always, PressKey},
    {"press", IsUsable, Press},
    {"select", HasItem, Select},
    {"doubleclick", HasItem, DoubleClick},
    {"check", HasItem, Check},
    {"uncheck", HasItem, Uncheck},
    {"drop", IsUsable, Drop},
    {"lift", IsUsable, Lift},
    {"expand", HasItem, Expand},
    {"collapse", HasItem, Collapse},
    {"resize", Always, Resize},
    {"read", HasControl, Read},
    {"items", HasControl, PrintItems},
    {"show", Always, Show},
    {"expect", Agrees, Nothing},
    {"shot", Always, Shoot},
};

// ---- Reasons

std::string ActualOf(const Step& step, HWND control)
{
    if (step.isState)
        return NameOf(step.target) + " is not " + ArgumentOf(step);
    return NameOf(step.target) + " reads " + Quoted(ToUtf8(ReadControl(control))) + " and not " +
           Quoted(ArgumentOf(step));
}

bool HasTarget(const Step& step)
{
    const auto form = std::ranges::find_if(StepForms(), [&](const StepForm& known) { return step.word == known.word; });
    return form->shape[0] == 'c';
}

std::string ReasonOfControl(const Step& step, HWND dialog)
{
    HWND control = FindControl(dialog, step.target);
    if (control == nullptr)
        return "the window " + Quoted(ToUtf8(robot::TextOf(dialog))) + " has no control " + NameOf(step.target) +
               "; the step `show` lists what it has";
    if (step.word == "expect")
        return ActualOf(step, control) + "; correct the expectation, or what comes before";
    if (!HasState(control, "visible"))
        return NameOf(step.target) + " is hidden; a rule of the dialog must show it first";
    if (!HasState(control, "enabled"))
        return NameOf(step.target) + " is disabled; a rule of the dialog must enable it first";
    return NameOf(step.target) + " has no item " + Quoted(ArgumentOf(step)) + "; the step `items` lists what it has";
}

} // namespace

const StepAction& ActionOf(const Step& step)
{
    return *std::ranges::find_if(actions, [&](const StepAction& action) { return step.word == action.word; });
}

std::string ReasonOf(const Stage& /*stage*/, const Step& step)
{
    HWND dialog = robot::ActiveDialog();
    if (dialog == nullptr)
        return "no window is open; is one step too many before this?";
    if (robot::IsMessageBox(dialog))
    {
        const std::string text = Quoted(ToUtf8(robot::MessageTextOf(dialog)));
        if (step.word == "message")
            return "the message reads " + text + " and not " + Quoted(ArgumentOf(step));
        return "a message is open: " + text + "; answer it with the steps `message` and `answer`";
    }
    if (HasTarget(step))
        return ReasonOfControl(step, dialog);
    const std::string name = Quoted(ToUtf8(robot::TextOf(dialog)));
    if (step.word == "window")
        return "the active window is " + name + " and not " + Quoted(ArgumentOf(step));
    if (step.word == "closed")
        return "the window is still open; close it with `press ok` or `press cancel`";
    return "no message came; the active window is " + name;
}

} // namespace lytcall
