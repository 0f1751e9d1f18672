#include "commandline/Text.h"
#include "script/Controls.h"

#include "robot/WindowRobot.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace script
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

HWND ControlOf(const Stage& stage, const Step& step)
{
    HWND dialog = robot::ActiveDialog();
    if (dialog == nullptr || robot::IsMessageBox(dialog))
        return nullptr;
    HWND named = stage.named ? stage.named(step.target.Written()) : nullptr;
    return named != nullptr ? named : FindControl(dialog, step.target);
}

std::string LabelOf(const Step& step)
{
    return step.word + " " + NameOf(step.target);
}

struct Key
{
    std::string_view word;
    UINT code;
};
constexpr Key keys[] = {
    {"tab", VK_TAB},      {"return", VK_RETURN}, {"escape", VK_ESCAPE}, {"space", VK_SPACE},    {"up", VK_UP},
    {"down", VK_DOWN},    {"left", VK_LEFT},     {"right", VK_RIGHT},   {"home", VK_HOME},      {"end", VK_END},
    {"pageup", VK_PRIOR}, {"pagedown", VK_NEXT}, {"delete", VK_DELETE}, {"backspace", VK_BACK}, {"f4", VK_F4},
};

bool IsCombo(HWND control)
{
    return TypeOf(control) == "combo";
}

// ---- Conditions

bool HasDialog(const Stage& /*stage*/, const Step& /*step*/)
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

bool HasControl(const Stage& stage, const Step& step)
{
    return ControlOf(stage, step) != nullptr;
}

bool IsUsable(const Stage& stage, const Step& step)
{
    HWND control = ControlOf(stage, step);
    return control != nullptr && IsWindowEnabled(control) && IsWindowVisible(control);
}

bool HasItem(const Stage& stage, const Step& step)
{
    RECT place = {};
    return IsUsable(stage, step) &&
           (step.arguments.empty() ||
            (IsCombo(ControlOf(stage, step)) ? ItemIndex(ControlOf(stage, step), step.Argument()) >= 0
                                             : ItemPlace(ControlOf(stage, step), step.Argument(), place)));
}

bool CanBeSet(const Stage& stage, const Step& step)
{
    const std::string type = TypeOf(ControlOf(stage, step));
    return type == "list" || type == "tree" ? HasItem(stage, step) : IsUsable(stage, step);
}

bool Agrees(const Stage& stage, const Step& step)
{
    HWND control = ControlOf(stage, step);
    if (control == nullptr)
        return false;
    return step.isState ? HasState(control, step.Argument()) : ReadControl(control) == ToAnsi(step.Argument());
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

void MoveFocus(Stage& stage, const Step& step)
{
    robot::Focus(ControlOf(stage, step));
}

void Type(Stage& stage, const Step& step)
{
    robot::Focus(ControlOf(stage, step));
    SendMessageA(GetFocus(), EM_SETSEL, 0, -1);
    const std::string text = ToAnsi(step.Argument());
    if (text.empty())
        robot::PressKey(VK_DELETE);
    robot::TypeText(text);
}

void Append(Stage& stage, const Step& step)
{
    robot::Focus(ControlOf(stage, step));
    const auto length = static_cast<WPARAM>(GetWindowTextLengthA(GetFocus()));
    SendMessageA(GetFocus(), EM_SETSEL, length, static_cast<LPARAM>(length));
    robot::TypeText(ToAnsi(step.Argument()));
}

void Enter(Stage& /*stage*/, const Step& step)
{
    robot::TypeText(ToAnsi(step.Argument()));
}

void PressKey(Stage& /*stage*/, const Step& step)
{
    const std::string& word = step.arguments.front();
    if (word.starts_with("alt+"))
    {
        robot::PressMnemonic(word.back());
        return;
    }
    const UINT key = std::ranges::find(keys, word, &Key::word)->code;
    for (int times = step.arguments.size() > 1 ? std::stoi(step.arguments[1]) : 1; times > 0; --times)
        robot::PressKey(key);
}

void Press(Stage& stage, const Step& step)
{
    robot::Click(ControlOf(stage, step));
}

void Select(Stage& stage, const Step& step)
{
    HWND control = ControlOf(stage, step);
    if (IsCombo(control))
    {
        robot::SelectItem(control, ItemIndex(control, step.Argument()));
        return;
    }
    RECT place = {};
    ItemPlace(control, step.Argument(), place);
    // Right of the middle: a click on the left end would meet the mark of a check list.
    robot::ClickAt(control, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void DoubleClick(Stage& stage, const Step& step)
{
    HWND control = ControlOf(stage, step);
    RECT place = {};
    GetClientRect(control, &place);
    if (!step.arguments.empty())
        ItemPlace(control, step.Argument(), place);
    robot::DoubleClickAt(control, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void SetMark(const Stage& stage, const Step& step, bool checked)
{
    HWND control = ControlOf(stage, step);
    if (step.arguments.empty())
    {
        if (HasState(control, "checked") != checked)
            robot::Click(control);
        return;
    }
    RECT place = {};
    ItemPlace(control, step.Argument(), place);
    if (IsItemChecked(control, ItemIndex(control, step.Argument())) != checked)
        robot::ClickAt(control, place.left + markX, (place.top + place.bottom) / 2);
}

void Check(Stage& stage, const Step& step)
{
    SetMark(stage, step, true);
}

void Uncheck(Stage& stage, const Step& step)
{
    SetMark(stage, step, false);
}

// What a user would do with the control: choose the item, set the mark as `read` prints it, or else type.
void Set(Stage& stage, const Step& step)
{
    const std::string type = TypeOf(ControlOf(stage, step));
    if (type == "check" || type == "option")
    {
        if (HasState(ControlOf(stage, step), "checked") != (step.Argument() == "checked"))
            robot::Click(ControlOf(stage, step));
    }
    else if (type == "edit" || (type == "combo" && !HasItem(stage, step)))
        Type(stage, step);
    else
        Select(stage, step);
}

// By its button, or without one by what Return and Escape send.
void End(int id)
{
    HWND window = robot::ActiveDialog();
    if (HWND button = GetDlgItem(window, id))
        robot::Press(button);
    else
        PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

void Confirm(Stage& /*stage*/, const Step& /*step*/)
{
    End(IDOK);
}

void Cancel(Stage& /*stage*/, const Step& /*step*/)
{
    End(IDCANCEL);
}

void Drop(Stage& stage, const Step& step)
{
    SendMessageA(ControlOf(stage, step), CB_SHOWDROPDOWN, TRUE, 0);
}

void Lift(Stage& stage, const Step& step)
{
    SendMessageA(ControlOf(stage, step), CB_SHOWDROPDOWN, FALSE, 0);
}

void SetBranch(const Stage& stage, const Step& step, UINT change)
{
    HWND tree = ControlOf(stage, step);
    HTREEITEM item = FindTreeItem(tree, ToAnsi(step.Argument()));
    SendMessageA(tree, TVM_EXPAND, change, reinterpret_cast<LPARAM>(item));
}

void Expand(Stage& stage, const Step& step)
{
    SetBranch(stage, step, TVE_EXPAND);
}

void Collapse(Stage& stage, const Step& step)
{
    SetBranch(stage, step, TVE_COLLAPSE);
}

void Resize(Stage& /*stage*/, const Step& step)
{
    SetWindowPos(robot::ActiveDialog(), nullptr, 0, 0, std::stoi(step.arguments[0]), std::stoi(step.arguments[1]),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Read(Stage& stage, const Step& step)
{
    PrintText(LabelOf(step), ReadControl(ControlOf(stage, step)));
}

void PrintItems(Stage& stage, const Step& step)
{
    const std::vector<std::string> items = ReadItems(ControlOf(stage, step));
    PrintNumber(LabelOf(step), static_cast<int>(items.size()));
    for (const std::string& item : items)
        PrintText("  item", item);
}

void Show(Stage& /*stage*/, const Step& /*step*/)
{
    for (const std::string& line : DescribeControls(robot::ActiveDialog()))
        std::printf("%s\n", line.c_str());
}

void Shoot(Stage& stage, const Step& step)
{
    if (!stage.savePicture(robot::ActiveDialog(), ToAnsi(step.Argument())))
        throw std::runtime_error("the picture " + Quoted(step.Argument()) +
                                 " cannot be saved; check its folder and name");
}

// ---- Reasons

std::string ActualOf(const Step& step, HWND control)
{
    if (step.isState)
        return NameOf(step.target) + " is not " + step.Argument();
    return NameOf(step.target) + " reads " + Quoted(ToUtf8(ReadControl(control))) + " and not " +
           Quoted(step.Argument());
}

std::string ReasonOfControl(const Stage& stage, const Step& step, HWND dialog)
{
    HWND control = ControlOf(stage, step);
    if (control == nullptr)
        return "the window " + Quoted(ToUtf8(robot::TextOf(dialog))) + " has no control " + NameOf(step.target) +
               "; the step `show` lists what it has";
    if (step.word == "expect")
        return ActualOf(step, control) + "; correct the expectation, or what comes before";
    if (!HasState(control, "visible"))
        return NameOf(step.target) + " is hidden; a rule of the dialog must show it first";
    if (!HasState(control, "enabled"))
        return NameOf(step.target) + " is disabled; a rule of the dialog must enable it first";
    return NameOf(step.target) + " has no item " + Quoted(step.Argument()) + "; the step `items` lists what it has";
}

} // namespace

const std::vector<StepForm>& StepForms()
{
    static const std::vector<StepForm> forms = {
        {"window", "?t", "[\"CAPTION\"]", "wait until a window (with that caption) is the active one", false, HasWindow,
         MeetWindow},
        {"closed", "", "", "wait until that window is gone", false, IsClosed, Nothing},
        {"message", "?t", "[\"TEXT\"]", "wait for a message box, print its text, and compare it", false, HasMessage,
         PrintMessage},
        {"answer", "?b", "[BUTTON]", "answer the message box: ok, cancel, yes, no, abort, retry, ignore", false,
         HasMessage, Answer},
        {"set", "ct", "NAME = VALUE", "type, choose or mark: field, list, combo, check box, option group", true,
         CanBeSet, Set},
        {"focus", "c", "CONTROL", "move the focus there", true, IsUsable, MoveFocus},
        {"type", "ct", "CONTROL \"TEXT\"", "type in place of what the field holds", true, IsUsable, Type},
        {"append", "ct", "CONTROL \"TEXT\"", "type after what the field holds", true, IsUsable, Append},
        {"enter", "t", "\"TEXT\"", "type where the focus is; what is selected there is replaced", true, HasDialog,
         Enter},
        {"key", "k?n", "KEY [TIMES]", "press a key, where the focus is; alt+X is an access key", true, HasDialog,
         PressKey},
        {"press", "c", "CONTROL", "click on it with the mouse", true, IsUsable, Press},
        {"select", "c?t", "CONTROL \"ITEM\"", "click on an item of a list, combo box or tree (tree: \"A/B/C\")", true,
         HasItem, Select},
        {"doubleclick", "c?t", "CONTROL [\"ITEM\"]", "double click on it, or on an item of it", true, HasItem,
         DoubleClick},
        {"check", "c?t", "CONTROL [\"ITEM\"]", "set the mark of a check box, option or item, unless it is set", true,
         HasItem, Check},
        {"uncheck", "c?t", "CONTROL [\"ITEM\"]", "take the mark off, unless it is off", true, HasItem, Uncheck},
        {"mark", "ct", "NAME = VALUE", "set the mark of the item of a check list that has this value", true, HasItem,
         Check},
        {"unmark", "ct", "NAME = VALUE", "take the mark off again", true, HasItem, Uncheck},
        {"drop", "c", "CONTROL", "open the list of a combo box", true, IsUsable, Drop},
        {"lift", "c", "CONTROL", "close it", true, IsUsable, Lift},
        {"expand", "ct", "CONTROL \"ITEM\"", "open a branch of a tree", true, HasItem, Expand},
        {"collapse", "ct", "CONTROL \"ITEM\"", "close a branch of a tree", true, HasItem, Collapse},
        {"resize", "nn", "WIDTH HEIGHT", "size the window, in pixels", true, HasDialog, Resize},
        {"ok", "", "", "press OK of the dialog on top", true, HasDialog, Confirm},
        {"cancel", "", "", "press Cancel of the dialog on top", true, HasDialog, Cancel},
        {"read", "c", "CONTROL", "print its text, state or chosen item", false, HasControl, Read},
        {"items", "c", "CONTROL", "print the items of a list, combo box or tree", false, HasControl, PrintItems},
        {"show", "", "", "print every control of the window", false, HasDialog, Show},
        {"expect", "cs", "CONTROL \"TEXT\"|STATE",
         "compare what `read` prints, or its state, and stop unless it agrees", false, Agrees, Nothing},
        {"shot", "t", "\"FILE\"", "save a picture of the window", false, HasDialog, Shoot},
    };
    return forms;
}

const std::vector<std::string>& ButtonWords()
{
    static const std::vector<std::string> words = {"ok", "cancel", "abort", "retry", "ignore", "yes", "no"};
    return words;
}

const std::vector<std::string>& KeyWords()
{
    static const std::vector<std::string> words = []
    {
        std::vector<std::string> made;
        for (const Key& key : keys)
            made.emplace_back(key.word);
        return made;
    }();
    return words;
}

std::string ReasonOf(const Stage& stage, const Step& step)
{
    HWND dialog = robot::ActiveDialog();
    if (dialog == nullptr)
        return "no window is open; is one step too many before this?";
    if (robot::IsMessageBox(dialog))
    {
        const std::string text = Quoted(ToUtf8(robot::MessageTextOf(dialog)));
        if (step.word == "message")
            return "the message reads " + text + " and not " + Quoted(step.Argument());
        return "a message is open: " + text + "; answer it with the steps `message` and `answer`";
    }
    if (FormOf(step).shape[0] == 'c')
        return ReasonOfControl(stage, step, dialog);
    const std::string name = Quoted(ToUtf8(robot::TextOf(dialog)));
    if (step.word == "window")
        return "the active window is " + name + " and not " + Quoted(step.Argument());
    if (step.word == "closed")
        return "the window is still open; close it with `press ok` or `press cancel`";
    return "no message came; the active window is " + name;
}

} // namespace script
