// The sample dialogs at the keyboard, in both languages: every field and button can be reached and pressed.
#include "SampleDialog.h"

#include <algorithm>
#include <functional>
#include <map>

namespace
{

DWORD StyleOf(HWND control)
{
    return static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE));
}

bool IsButtonOf(HWND control, std::initializer_list<DWORD> kinds)
{
    return robot::ClassOf(control) == "Button" && std::ranges::count(kinds, StyleOf(control) & BS_TYPEMASK) != 0;
}

bool IsPushButton(HWND control)
{
    return IsButtonOf(control, {BS_PUSHBUTTON, BS_DEFPUSHBUTTON});
}

bool IsMark(HWND control)
{
    return IsButtonOf(control, {BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON});
}

bool IsChecked(HWND mark)
{
    return SendMessageA(mark, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool IsUsable(HWND control)
{
    return IsWindowVisible(control) != FALSE && IsWindowEnabled(control) != FALSE;
}

// Every field and button is one; of the options of a group, one is.
bool IsTabStop(HWND control)
{
    if (!IsUsable(control) || robot::ClassOf(control) == "Static" || IsButtonOf(control, {BS_GROUPBOX}))
        return false;
    return !IsButtonOf(control, {BS_AUTORADIOBUTTON}) || (StyleOf(control) & WS_TABSTOP) != 0;
}

// The child of the dialog that has the focus, or holds the field that has it.
HWND FocusedChild()
{
    HWND control = GetFocus();
    while (control != nullptr && GetParent(control) != robot::ActiveDialog())
        control = GetParent(control);
    return control;
}

// By its number, since lists look alike.
std::string NameOf(HWND control)
{
    const std::vector<HWND> children = robot::ChildrenOf(GetParent(control));
    return "#" + std::to_string(std::ranges::find(children, control) - children.begin() + 1) + " " +
           robot::ClassOf(control) + " \"" + robot::TextOf(control) + "\"";
}

// The tab stops of the dialog from the one with the focus on, the other way round when going back.
std::vector<std::string> TabStopsFromFocus(HWND dialog, bool back)
{
    std::vector<HWND> stops = robot::ChildrenOf(dialog);
    std::erase_if(stops, [](HWND control) { return !IsTabStop(control); });
    if (back)
        std::ranges::reverse(stops);
    std::rotate(stops.begin(), std::ranges::find(stops, FocusedChild()), stops.end());
    std::vector<std::string> names;
    std::ranges::transform(stops, std::back_inserter(names), NameOf);
    return names;
}

// The letter that a caption underlines, or NUL.
char LetterOf(const std::string& caption)
{
    const size_t mark = caption.find('&');
    return mark + 1 < caption.size() && mark != std::string::npos ? caption[mark + 1] : '\0';
}

std::map<HWND, WNDPROC> buttonProcedures;
std::vector<std::string> pressed;

// A button that tells of a press, and does nothing.
LRESULT CALLBACK TellPress(HWND button, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != BM_CLICK)
        return CallWindowProcA(buttonProcedures.at(button), button, message, wParam, lParam);
    pressed.push_back(NameOf(button));
    return 0;
}

class SampleKeyboard : public SampleDialog
{
protected:
    // Presses Tab until the focus is back where it was, and keeps where it went.
    void GoRound()
    {
        const std::string name = NameOf(FocusedChild());
        if (visited.size() > 100 || (!visited.empty() && name == visited.front()))
        {
            Then([] { robot::PressKey(VK_ESCAPE); });
            return;
        }
        visited.push_back(name);
        robot::PressKey(VK_TAB);
        Then([this] { GoRound(); });
    }

    // Presses the letters of all captions from that control on, one after the other. With the focus on OK, a letter that two
    // captions have would lead to the first of them.
    void PressLettersFrom(HWND control)
    {
        while (control != nullptr && !(IsUsable(control) && LetterOf(robot::TextOf(control)) != '\0'))
            control = GetWindow(control, GW_HWNDNEXT);
        if (control == nullptr)
        {
            robot::PressKey(VK_ESCAPE);
            return;
        }
        robot::Focus(GetDlgItem(GetParent(control), IDOK));
        const std::function<void()> expect = ExpectationOf(control);
        robot::PressMnemonic(LetterOf(robot::TextOf(control)));
        Then(
            [=, this]
            {
                expect();
                PressLettersFrom(GetWindow(control, GW_HWNDNEXT));
            });
    }

    // What the letter of a control does: it presses a button, sets or takes off a mark, and leads from a label to the next
    // field.
    static std::function<void()> ExpectationOf(HWND control)
    {
        const std::string name = NameOf(control);
        if (IsPushButton(control))
        {
            pressed.clear();
            return [name] { EXPECT_EQ(pressed, std::vector<std::string>{name}); };
        }
        if (IsMark(control))
        {
            const bool checked = IsButtonOf(control, {BS_AUTORADIOBUTTON}) || !IsChecked(control);
            return [control, checked, name]
            {
                EXPECT_EQ(IsChecked(control), checked) << name;
                EXPECT_EQ(FocusedChild(), control) << name;
            };
        }
        HWND field = GetWindow(control, GW_HWNDNEXT);
        if (!IsUsable(field))
            return [] {};
        while (!IsTabStop(field))
            field = GetWindow(field, GW_HWNDNEXT);
        return [field, name] { EXPECT_EQ(FocusedChild(), field) << name; };
    }

    void Then(std::function<void()> act)
    {
        robot.On("", [act = std::move(act)](HWND /*dialog*/) { act(); });
    }

    std::vector<std::string> wanted;
    std::vector<std::string> visited;
};

} // namespace

TEST_P(SampleKeyboard, TabReachesEveryFieldAndButtonInTheOrderOfTheDescription)
{
    robot.On("",
             [&](HWND dialog)
             {
                 wanted = TabStopsFromFocus(dialog, false);
                 GoRound();
             });
    EXPECT_EQ(Open(), 0);
    EXPECT_EQ(visited, wanted);
}

TEST_P(SampleKeyboard, ShiftAndTabGoTheOtherWay)
{
    robot.On("", [&](HWND /*dialog*/) { robot::HoldKey(VK_SHIFT); });
    robot.When(
        "Shift is held", [] { return robot::IsKeyHeld(VK_SHIFT); },
        [&]
        {
            wanted = TabStopsFromFocus(robot::ActiveDialog(), true);
            GoRound();
        });
    EXPECT_EQ(Open(), 0);
    robot::ReleaseKey(VK_SHIFT);
    EXPECT_EQ(visited, wanted);
}

TEST_P(SampleKeyboard, TheLetterThatACaptionUnderlinesLeadsToItsControl)
{
    robot.On("",
             [&](HWND dialog)
             {
                 buttonProcedures.clear();
                 for (HWND child : robot::ChildrenOf(dialog))
                 {
                     if (IsPushButton(child))
                         buttonProcedures[child] = reinterpret_cast<WNDPROC>(
                             SetWindowLongPtrA(child, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(TellPress)));
                 }
                 PressLettersFrom(GetWindow(dialog, GW_CHILD));
             });
    EXPECT_EQ(Open(), 0);
}

INSTANTIATE_TEST_SUITE_P(Dialog, SampleKeyboard, testing::ValuesIn(Samples()), NameOfSample);
