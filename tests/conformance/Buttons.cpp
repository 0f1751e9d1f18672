// Push buttons, check boxes and option buttons: what a press does, and what a state set by the program does.
#include "Stage.h"

namespace
{

// Choices among options of which some cannot be used.
void Options()
{
    Stage stage("Options");
    CButton& push = stage.Button(9, "Push");
    CButton& first = stage.Button(10, "First", BS_AUTORADIOBUTTON | WS_GROUP);
    CButton& second = stage.Button(11, "Second", BS_AUTORADIOBUTTON);
    CButton& third = stage.Button(12, "Third", BS_AUTORADIOBUTTON);
    CButton& fourth = stage.Button(13, "Fourth", BS_AUTORADIOBUTTON);
    stage.Button(IDOK, "OK", BS_DEFPUSHBUTTON | WS_GROUP);
    const auto look = [&]
    {
        for (const CButton* option : {&first, &second, &third, &fourth})
            Print("%d: %d, tab stop %d", option->GetDlgCtrlID(), option->GetCheck(),
                  (option->GetStyle() & WS_TABSTOP) != 0);
    };
    const auto make = [&](CButton& option, bool isHidden, BOOL isOn)
    {
        if (isHidden)
            option.ShowWindow(isOn != FALSE ? SW_SHOW : SW_HIDE);
        else
            option.EnableWindow(isOn);
    };
    for (const bool isHidden : {true, false})
    {
        const std::string state = isHidden ? "hidden" : "disabled";
        stage.Act("choose by program beside a " + state + " one",
                  [&, isHidden]
                  {
                      second.SetCheck(1);
                      make(second, isHidden, FALSE);
                      third.SetCheck(1);
                  });
        stage.Look(look);
        stage.Act("click one beside it", [&] { robot::Click(first.m_hWnd); });
        stage.Look(look);
        stage.Act("arrow over it", [] { robot::PressKey(VK_DOWN); });
        stage.Look(look);
        stage.Act("choose the " + state + " one by program", [&] { second.SetCheck(1); });
        stage.Look(look);
        stage.Act("tab to the options",
                  [&]
                  {
                      push.SetFocus();
                      robot::PressKey(VK_TAB);
                  });
        stage.Act("use it again",
                  [&, isHidden]
                  {
                      make(second, isHidden, TRUE);
                      second.SetCheck(1);
                  });
        stage.Look(look);
        stage.Act(state + ", and the one that begins the group",
                  [&, isHidden]
                  {
                      make(first, isHidden, FALSE);
                      make(second, isHidden, FALSE);
                      fourth.SetCheck(1);
                  });
        stage.Look(look);
        stage.Act("click one after them", [&] { robot::Click(third.m_hWnd); });
        stage.Act("arrow on", [] { robot::PressKey(VK_DOWN); });
        stage.Act("arrow round", [] { robot::PressKey(VK_DOWN); });
        stage.Look(look);
        stage.Act("use both again",
                  [&, isHidden]
                  {
                      make(first, isHidden, TRUE);
                      make(second, isHidden, TRUE);
                      first.SetCheck(1);
                  });
        stage.Look(look);
    }
    stage.Run();
}

} // namespace

void Buttons()
{
    Options();
    Stage stage("Buttons");
    CButton& push = stage.Button(10, "Push");
    CButton& check = stage.Button(11, "Check", BS_AUTOCHECKBOX);
    CButton& first = stage.Button(12, "First", BS_AUTORADIOBUTTON | WS_GROUP);
    CButton& second = stage.Button(13, "Second", BS_AUTORADIOBUTTON);
    CButton& third = stage.Button(14, "Third", BS_AUTORADIOBUTTON);
    CButton& other = stage.Button(15, "Other", BS_AUTORADIOBUTTON | WS_GROUP);
    auto& box = stage.Add<CButton>(16, "Button", "Box", BS_GROUPBOX | WS_GROUP);
    CStatic& label = stage.Static(17, "Label");
    stage.Ok();
    stage.Cancel();
    const auto checks = [&]
    {
        Print("checks %d %d%d%d %d", check.GetCheck(), first.GetCheck(), second.GetCheck(), third.GetCheck(),
              other.GetCheck());
    };

    stage.Act("open", [] {});
    stage.Act("click a push button", [&] { robot::Click(push.m_hWnd); });
    stage.Act("press a push button, let go outside",
              [&]
              {
                  ::PostMessageA(push.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
                  ::PostMessageA(push.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(5, 500));
              });
    stage.Act("double click a push button", [&] { robot::DoubleClickAt(push.m_hWnd, 5, 5); });
    stage.Act("press it without the mouse", [&] { robot::Press(push.m_hWnd); });
    stage.Act("click a check box", [&] { robot::Click(check.m_hWnd); });
    stage.Look(checks);
    stage.Act("click it again", [&] { robot::Click(check.m_hWnd); });
    stage.Look(checks);
    stage.Act("set its check", [&] { check.SetCheck(1); });
    stage.Look(checks);
    stage.Act("click an option", [&] { robot::Click(second.m_hWnd); });
    stage.Look(checks);
    stage.Act("click another", [&] { robot::Click(first.m_hWnd); });
    stage.Look(checks);
    stage.Act("click the chosen one", [&] { robot::Click(first.m_hWnd); });
    stage.Act("choose by program", [&] { third.SetCheck(1); });
    stage.Look(checks);
    stage.Act("choose in another group by program", [&] { other.SetCheck(1); });
    stage.Look(checks);
    stage.Act("unchoose by program", [&] { third.SetCheck(0); });
    stage.Look(checks);
    stage.Act("tab stops of the options",
              [&]
              {
                  for (const CButton* option : {&first, &second, &third, &other})
                      Print("%d: %d", option->GetDlgCtrlID(), (option->GetStyle() & WS_TABSTOP) != 0);
              });
    stage.Act("click a group box", [&] { robot::Click(box.m_hWnd); });
    stage.Act("click a label", [&] { robot::Click(label.m_hWnd); });
    // The emulator leaves an unchosen option button alone that gets the focus; Windows is known to choose it.
    stage.Act("focus an unchosen option", [&] { second.SetFocus(); });
    stage.Look(checks);
    stage.Act("press a disabled one",
              [&]
              {
                  push.EnableWindow(FALSE);
                  robot::Press(push.m_hWnd);
              });
    stage.Act("enable it again", [&] { push.EnableWindow(TRUE); });
    stage.Act("set the texts",
              [&]
              {
                  CString text;
                  push.SetWindowText("Renamed");
                  push.GetWindowText(text);
                  Print("'%s'", text.GetString());
                  label.SetWindowText("");
                  label.GetWindowText(text);
                  Print("'%s'", text.GetString());
              });
    stage.Act("states",
              [&]
              {
                  push.SendMessage(BM_SETSTATE, TRUE);
                  Print("state %d", static_cast<int>(push.SendMessage(BM_GETSTATE) & (BST_PUSHED | 3)));
                  push.SendMessage(BM_SETSTATE, FALSE);
                  Print("state %d", static_cast<int>(push.SendMessage(BM_GETSTATE) & (BST_PUSHED | 3)));
              });
    stage.Run();
}
