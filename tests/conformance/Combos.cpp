// Combo boxes with and without a field for free text, closed and open.
#include "Stage.h"

namespace
{

void PrintState(const CComboBox& combo)
{
    CString text;
    combo.GetWindowText(text);
    Print("%d: '%s' cur %d of %d open %d", combo.GetDlgCtrlID(), text.GetString(), combo.GetCurSel(), combo.GetCount(),
          static_cast<int>(combo.SendMessage(CB_GETDROPPEDSTATE)));
}

void Fill(const CComboBox& combo)
{
    combo.ResetContent();
    for (const char* text : {"alpha", "beta", "beech", "gamma"})
        combo.AddString(text);
}

void AddCalls(Stage& stage, const CComboBox& combo)
{
    const auto act = [&stage, &combo](const char* title, std::function<int()> what)
    {
        stage.Act(title, [what = std::move(what)] { Print("gives %d", what()); });
        stage.Look([&combo] { PrintState(combo); });
    };
    act("add", [&] { return combo.AddString("gamma"); });
    act("add another", [&] { return combo.AddString("alpha"); });
    act("insert at the top", [&] { return combo.InsertString(0, "beta"); });
    act("insert beyond the end", [&] { return combo.InsertString(17, "?"); });
    act("select 1", [&] { return combo.SetCurSel(1); });
    act("insert before it", [&] { return combo.InsertString(0, "new"); });
    act("select 99", [&] { return combo.SetCurSel(99); });
    act("set the text of an item",
        [&]
        {
            combo.SetWindowText("alpha");
            return 0;
        });
    act("set any text",
        [&]
        {
            combo.SetWindowText("free");
            return 0;
        });
    act("delete before it", [&] { return combo.DeleteString(0); });
    act("delete it", [&] { return combo.DeleteString(combo.GetCurSel()); });
    act("delete 99", [&] { return combo.DeleteString(99); });
    act("select none", [&] { return combo.SetCurSel(-1); });
    act("empty it", [&] { return static_cast<int>(combo.SendMessage(CB_RESETCONTENT)); });
    act("fill it",
        [&]
        {
            Fill(combo);
            return combo.SetCurSel(0);
        });
}

void AddUse(Stage& stage, const CComboBox& combo, const CEdit& before)
{
    const auto act = [&stage, &combo](const char* title, std::function<void()> what)
    {
        stage.Act(title, std::move(what));
        stage.Look([&combo] { PrintState(combo); });
    };
    act("tab into it", [] { robot::PressKey(VK_TAB); });
    act("down", [] { robot::PressKey(VK_DOWN); });
    act("up", [] { robot::PressKey(VK_UP); });
    act("up at the top", [] { robot::PressKey(VK_UP); });
    // The emulator leaves the item that a key has chosen to the first character typed after it.
    act("a letter", [] { robot::TypeText("b"); });
    act("another letter", [] { robot::TypeText("e"); });
    act("a letter that two items begin with, twice",
        [&]
        {
            combo.SetCurSel(0);
            robot::TypeText("b");
            PrintState(combo);
            robot::TypeText("b");
        });
    act("drawing off and on",
        [&]
        {
            combo.SetRedraw(FALSE);
            Print("visible %d", combo.IsWindowVisible());
            combo.SetRedraw(TRUE);
            Print("visible %d", combo.IsWindowVisible());
        });
    act("down", [] { robot::PressKey(VK_DOWN); });
    act("open", [&] { combo.SendMessage(CB_SHOWDROPDOWN, TRUE); });
    act("down while open", [] { robot::PressKey(VK_DOWN); });
    act("return while open", [] { robot::PressKey(VK_RETURN); });
    act("open with a key", [] { robot::PressKey(VK_F4); });
    act("up while open", [] { robot::PressKey(VK_UP); });
    act("escape while open", [] { robot::PressKey(VK_ESCAPE); });
    act("open again", [] { robot::PressKey(VK_F4); });
    act("close with the key", [] { robot::PressKey(VK_F4); });
    act("open by program", [&] { combo.SendMessage(CB_SHOWDROPDOWN, TRUE); });
    act("close by program", [&] { combo.SendMessage(CB_SHOWDROPDOWN, FALSE); });
    act("close once more", [&] { combo.SendMessage(CB_SHOWDROPDOWN, FALSE); });
    act("click the arrow", [&] { robot::ClickAt(combo.m_hWnd, 195, 10); });
    act("click it again", [&] { robot::ClickAt(combo.m_hWnd, 195, 10); });
    act("open, and leave with the tab key",
        [&]
        {
            combo.SendMessage(CB_SHOWDROPDOWN, TRUE);
            robot::PressKey(VK_TAB);
        });
    act("click into it", [&] { robot::ClickAt(combo.m_hWnd, 40, 10); });
    act("close it", [&] { combo.SendMessage(CB_SHOWDROPDOWN, FALSE); });
    act("focus by program", [&] { combo.SetFocus(); });
    act("select by program", [&] { combo.SetCurSel(2); });
    act("focus elsewhere", [&] { before.SetFocus(); });
    act("replace the text", [&] { robot::ReplaceText(combo.m_hWnd, "free"); });
    act("home and end",
        []
        {
            robot::PressKey(VK_HOME);
            robot::PressKey(VK_END);
        });
    act("disable it", [&] { combo.EnableWindow(FALSE); });
    act("enable it", [&] { combo.EnableWindow(TRUE); });
    act("hide it with the focus",
        [&]
        {
            combo.SetFocus();
            combo.ShowWindow(SW_HIDE);
        });
}

void Kind(const char* title, DWORD style)
{
    Stage stage(title);
    const CEdit& before = stage.Edit(9);
    const CComboBox& combo = stage.Combo(10, style);
    stage.Ok();
    stage.Cancel();
    AddCalls(stage, combo);
    AddUse(stage, combo, before);
    stage.Run();
}

} // namespace

void Combos()
{
    Kind("Drop-down list", CBS_DROPDOWNLIST);
    Kind("Combo box with free text", CBS_DROPDOWN | CBS_AUTOHSCROLL);
}
