// Edit fields: what changes the text, and who hears of it.
#include "Stage.h"

void Edits()
{
    Stage stage("Edits");
    CEdit& first = stage.Edit(10);
    CEdit& second = stage.Edit(11);
    CEdit& off = stage.Edit(12);
    stage.Ok();
    const auto texts = [&]
    {
        for (const CEdit* edit : {&first, &second, &off})
        {
            CString text;
            edit->GetWindowText(text);
            const auto selection = edit->SendMessage(EM_GETSEL);
            Print("%d: '%s' %d-%d", edit->GetDlgCtrlID(), text.GetString(), LOWORD(selection), HIWORD(selection));
        }
    };
    const auto act = [&](const char* title, std::function<void()> what)
    {
        stage.Act(title, std::move(what));
        stage.Look(texts);
    };

    act("open", [] {});
    act("type", [] { robot::TypeText("Abc"); });
    act("set the text of another", [&] { second.SetWindowText("one two"); });
    act("set the same text", [&] { second.SetWindowText("one two"); });
    act("set no text", [&] { off.SetWindowText(nullptr); });
    act("select and replace",
        [&]
        {
            second.SetSel(0, 3);
            second.SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>("three"));
        });
    act("select backwards", [&] { second.SetSel(5, 2); });
    act("select beyond the end", [&] { second.SetSel(2, 99); });
    act("select nothing", [&] { second.SetSel(-1, 0); });
    act("clear without a selection", [&] { second.Clear(); });
    act("clear the selection",
        [&]
        {
            second.SetSel(0, -1);
            second.Clear();
        });
    act("clear an empty field",
        [&]
        {
            second.SetSel(0, -1);
            second.Clear();
        });
    act("tab into it", [] { robot::PressKey(VK_TAB); });
    act("type, go back, type",
        []
        {
            robot::TypeText("xyz");
            robot::PressKey(VK_LEFT);
            robot::TypeText("1");
        });
    act("take a character back", [] { robot::TypeText("\b"); });
    act("delete the next", [] { robot::PressKey(VK_DELETE); });
    act("delete at the end", [] { robot::PressKey(VK_DELETE); });
    act("home and end",
        []
        {
            robot::PressKey(VK_HOME);
            robot::TypeText("<");
            robot::PressKey(VK_END);
            robot::TypeText(">");
        });
    act("click", [&] { robot::ClickAt(first.m_hWnd, 3, 3); });
    act("click after the text", [&] { robot::ClickAt(first.m_hWnd, 150, 3); });
    act("type there", [] { robot::TypeText("!"); });
    act("replace as a user does", [&] { robot::ReplaceText(second.m_hWnd, "new"); });
    act("a disabled one",
        [&]
        {
            off.EnableWindow(FALSE);
            off.SetWindowText("set all the same");
            Print("focus refused: %d", off.SetFocus() == nullptr);
            off.SetSel(0, 3);
            off.Clear();
        });
    act("hide the one with the focus", [&] { second.ShowWindow(SW_HIDE); });
    act("show it again", [&] { second.ShowWindow(SW_SHOW); });
    act("disable the one with the focus", [&] { first.EnableWindow(FALSE); });
    act("keys without a focus", [] { robot::PressKey(VK_TAB); });
    act("focus by program", [&] { second.SetFocus(); });
    act("focus again", [&] { second.SetFocus(); });
    stage.Run();
}
