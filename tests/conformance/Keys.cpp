// What each key does in a dialog, posted by a program and struck on the keyboard.
#include "Stage.h"

namespace
{

void WithPosted()
{
    Stage stage("Keys");
    const CEdit& edit = stage.Edit(9);
    stage.Static(8, "&Label");
    const CEdit& labelled = stage.Edit(7);
    const CButton& push = stage.Button(10, "&Push");
    const CButton& check = stage.Button(11, "&Check", BS_AUTOCHECKBOX);
    const CButton& first = stage.Button(12, "&First", BS_AUTORADIOBUTTON | WS_GROUP);
    stage.Button(13, "&Second", BS_AUTORADIOBUTTON);
    const CButton& third = stage.Button(14, "&Third", BS_AUTORADIOBUTTON);
    stage.Add<CButton>(16, "Button", "&Box", BS_GROUPBOX | WS_GROUP);
    const CListBox& list = stage.List(17);
    const CButton& ok = stage.Button(IDOK, "OK", BS_DEFPUSHBUTTON | WS_GROUP);
    const CButton& cancel = stage.Cancel();

    for (int step = 0; step < 8; ++step)
        stage.Act("tab", [] { robot::PressKey(VK_TAB); });
    stage.Act("focus by the dialog, then by program",
              [&]
              {
                  robot::Focus(push.m_hWnd);
                  edit.SetFocus();
              });
    stage.Act("return in a field after that", [] { robot::PressKey(VK_RETURN); });
    stage.Act("return on a button focused by the dialog",
              [&]
              {
                  robot::Focus(push.m_hWnd);
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("return on a button focused by program",
              [&]
              {
                  robot::Focus(edit.m_hWnd);
                  push.SetFocus();
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("space on a button", [] { robot::PressKey(VK_SPACE); });
    stage.Act("return on a check box",
              [&]
              {
                  robot::Focus(check.m_hWnd);
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("space on a check box", [] { robot::PressKey(VK_SPACE); });
    stage.Act("return in a list",
              [&]
              {
                  robot::Focus(list.m_hWnd);
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("escape", [] { robot::PressKey(VK_ESCAPE); });
    stage.Act("escape with the button disabled",
              [&]
              {
                  cancel.EnableWindow(FALSE);
                  robot::PressKey(VK_ESCAPE);
              });
    stage.Act("return with the button disabled",
              [&]
              {
                  ok.EnableWindow(FALSE);
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("return with the button hidden",
              [&]
              {
                  ok.EnableWindow(TRUE);
                  ok.ShowWindow(SW_HIDE);
                  robot::PressKey(VK_RETURN);
              });
    stage.Act("show it",
              [&]
              {
                  cancel.EnableWindow(TRUE);
                  ok.ShowWindow(SW_SHOW);
              });

    stage.Act("arrow down in the options",
              [&]
              {
                  robot::Focus(first.m_hWnd);
                  robot::PressKey(VK_DOWN);
              });
    stage.Act("arrow right", [] { robot::PressKey(VK_RIGHT); });
    // The group ends before the group box; the emulator goes back to its first button.
    stage.Act("arrow down on the last", [] { robot::PressKey(VK_DOWN); });
    stage.Act("arrow up", [] { robot::PressKey(VK_UP); });
    // The emulator leaves the group over its first button; Windows is known to stay in it.
    stage.Act("arrow up on the first",
              [&]
              {
                  robot::Focus(first.m_hWnd);
                  robot::PressKey(VK_UP);
              });
    stage.Act("arrow down on a button",
              [&]
              {
                  robot::Focus(push.m_hWnd);
                  robot::PressKey(VK_DOWN);
              });
    stage.Act("arrow up on a button",
              [&]
              {
                  robot::Focus(push.m_hWnd);
                  robot::PressKey(VK_UP);
              });
    stage.Act("arrow down on the last of the dialog",
              [&]
              {
                  robot::Focus(cancel.m_hWnd);
                  robot::PressKey(VK_DOWN);
              });

    stage.Act("access key of a button",
              [&]
              {
                  robot::Focus(edit.m_hWnd);
                  robot::PressMnemonic('p');
              });
    stage.Act("access key of a check box", [] { robot::PressMnemonic('C'); });
    stage.Act("access key of an option", [] { robot::PressMnemonic('t'); });
    stage.Act("access key of a label", [] { robot::PressMnemonic('l'); });
    stage.Act("access key of a group box", [] { robot::PressMnemonic('b'); });
    stage.Act("access key that none has", [] { robot::PressMnemonic('z'); });
    stage.Act("a letter on a button",
              [&]
              {
                  robot::Focus(push.m_hWnd);
                  robot::TypeText("c");
              });
    stage.Act("a letter that none has",
              [&]
              {
                  robot::Focus(push.m_hWnd);
                  robot::TypeText("z");
              });
    stage.Act("access key of a disabled button",
              [&]
              {
                  push.EnableWindow(FALSE);
                  robot::Focus(labelled.m_hWnd);
                  robot::PressMnemonic('p');
              });
    stage.Act("tab past it", [] { robot::PressKey(VK_TAB); });
    stage.Act("close", [&] { ::PostMessageA(::GetParent(third.m_hWnd), WM_CLOSE, 0, 0); });
    stage.Run();
}

void WithKeyboard()
{
    Stage stage("Keyboard");
    const CEdit& edit = stage.Edit(9);
    const CButton& push = stage.Button(10, "&Push");
    const CListBox& list = stage.List(11);
    const CComboBox& combo = stage.Combo(12, CBS_DROPDOWN | CBS_AUTOHSCROLL);
    stage.Ok();
    stage.Cancel();
    stage.Act("letters",
              []
              {
                  Strike('A');
                  Strike('1');
              });
    stage.Act("a capital letter",
              []
              {
                  robot::HoldKey(VK_SHIFT);
                  Strike('B');
                  robot::ReleaseKey(VK_SHIFT);
              });
    stage.Look(
        [&]
        {
            CString text;
            edit.GetWindowText(text);
            Print("'%s'", text.GetString());
        });
    stage.Act("tab", [] { Strike(VK_TAB); });
    stage.Act("space", [] { Strike(VK_SPACE); });
    stage.Act("return", [] { Strike(VK_RETURN); });
    stage.Act("tab back",
              []
              {
                  robot::HoldKey(VK_SHIFT);
                  Strike(VK_TAB);
                  robot::ReleaseKey(VK_SHIFT);
              });
    stage.Act("return in the field", [] { Strike(VK_RETURN); });
    stage.Act("access key",
              []
              {
                  robot::HoldKey(VK_MENU);
                  Strike('P');
                  robot::ReleaseKey(VK_MENU);
              });
    stage.Act("down in a list",
              [&]
              {
                  list.AddString("one");
                  list.AddString("two");
                  list.SetFocus();
                  Strike(VK_DOWN);
              });
    stage.Act("letter in a list", [] { Strike('T'); });
    stage.Act("open a combo box with Alt and down",
              [&]
              {
                  combo.AddString("one");
                  combo.AddString("two");
                  combo.SetFocus();
                  robot::HoldKey(VK_MENU);
                  Strike(VK_DOWN);
                  robot::ReleaseKey(VK_MENU);
              });
    stage.Act("down", [] { Strike(VK_DOWN); });
    stage.Act("return", [] { Strike(VK_RETURN); });
    stage.Act("escape", [] { Strike(VK_ESCAPE); });
    stage.Act("keys without a focus",
              [&]
              {
                  edit.SetFocus();
                  edit.EnableWindow(FALSE);
                  Strike(VK_RETURN);
                  Strike(VK_TAB);
              });
    stage.Act("a button by a click after that", [&] { robot::Click(push.m_hWnd); });
    stage.Run();
}

} // namespace

void Keys()
{
    WithPosted();
    WithKeyboard();
}
