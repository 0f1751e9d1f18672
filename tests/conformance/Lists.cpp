// List boxes and check lists: the items, the selection, and what the user does to them.
#include "Stage.h"

namespace
{

std::string ItemsOf(const CListBox& list)
{
    std::string items;
    for (int index = 0; index < list.GetCount(); ++index)
    {
        CString text;
        list.GetText(index, text);
        items += std::string(index == 0 ? "" : "|") + text.GetString() + ":" + std::to_string(list.GetItemData(index));
    }
    return items;
}

void PrintState(const CListBox& list)
{
    Print("%d: %s cur %d caret %d top %d", list.GetDlgCtrlID(), ItemsOf(list).c_str(), list.GetCurSel(),
          list.GetCaretIndex(), list.GetTopIndex());
}

void ClickItem(const CListBox& list, int index, bool twice = false)
{
    CRect item;
    list.GetItemRect(index, &item);
    (twice ? robot::DoubleClickAt : robot::ClickAt)(list.m_hWnd, 60, item.top + 3);
}

// The calls of the program, the same for both kinds.
void AddCalls(Stage& stage, const CListBox& list)
{
    const auto act = [&stage, &list](const char* title, std::function<int()> what)
    {
        stage.Act(title, [what = std::move(what)] { Print("gives %d", what()); });
        stage.Look([&list] { PrintState(list); });
    };
    act("add c", [&] { return list.AddString("c"); });
    act("add B", [&] { return list.AddString("B"); });
    act("add a", [&] { return list.AddString("a"); });
    act("insert at the end", [&] { return list.InsertString(-1, "end"); });
    act("insert at the top", [&] { return list.InsertString(0, "top"); });
    act("insert beyond the end", [&] { return list.InsertString(17, "?"); });
    act("insert an empty text", [&] { return list.InsertString(2, ""); });
    act("select 3", [&] { return list.SetCurSel(3); });
    act("select 3 again", [&] { return list.SetCurSel(3); });
    act("select 99", [&] { return list.SetCurSel(99); });
    act("insert before it", [&] { return list.InsertString(1, "new"); });
    act("insert at it", [&] { return list.InsertString(4, "here"); });
    act("insert after it", [&] { return list.InsertString(6, "late"); });
    act("delete before it", [&] { return list.DeleteString(0); });
    act("delete the last", [&] { return list.DeleteString(list.GetCount() - 1); });
    act("delete it", [&] { return list.DeleteString(list.GetCurSel()); });
    act("delete 99", [&] { return list.DeleteString(99); });
    act("select none", [&] { return list.SetCurSel(-1); });
    act("item data",
        [&]
        {
            list.SendMessage(LB_SETITEMDATA, 1, 77);
            list.InsertString(0, "first");
            return static_cast<int>(list.SendMessage(LB_SETITEMDATA, 99, 1));
        });
    act("text of no item", [&] { return static_cast<int>(list.SendMessage(LB_GETTEXTLEN, 99)); });
    act("data of no item", [&] { return static_cast<int>(list.GetItemData(99)); });
    act("empty it", [&] { return static_cast<int>(list.SendMessage(LB_RESETCONTENT)); });
    act("insert into the empty list", [&] { return list.InsertString(5, "?"); });
}

void AddMany(const CListBox& list)
{
    for (const char* text : {"alpha", "beta", "beech", "gamma", "delta", "epsilon", "zeta", "eta"})
        list.InsertString(-1, text);
}

void AddUse(Stage& stage, const CListBox& list)
{
    const auto act = [&stage, &list](const char* title, std::function<void()> what)
    {
        stage.Act(title, std::move(what));
        stage.Look([&list] { PrintState(list); });
    };
    act("fill", [&] { AddMany(list); });
    act("key down in a list without a selection",
        [&]
        {
            list.SetFocus();
            robot::PressKey(VK_DOWN);
        });
    act("down", [] { robot::PressKey(VK_DOWN); });
    act("right", [] { robot::PressKey(VK_RIGHT); });
    act("up", [] { robot::PressKey(VK_UP); });
    act("end", [] { robot::PressKey(VK_END); });
    act("end again", [] { robot::PressKey(VK_END); });
    act("down at the end", [] { robot::PressKey(VK_DOWN); });
    act("home", [] { robot::PressKey(VK_HOME); });
    act("page down", [] { robot::PressKey(VK_NEXT); });
    act("page up", [] { robot::PressKey(VK_PRIOR); });
    act("a letter", [] { robot::TypeText("b"); });
    act("the letter again", [] { robot::TypeText("b"); });
    act("a letter that none has", [] { robot::TypeText("q"); });
    act("space", [] { robot::PressKey(VK_SPACE); });
    act("click an item", [&] { ClickItem(list, 2); });
    act("click it again", [&] { ClickItem(list, 2); });
    act("double click an item", [&] { ClickItem(list, 1, true); });
    act("click below the items",
        [&]
        {
            list.ResetContent();
            list.AddString("only");
            robot::ClickAt(list.m_hWnd, 60, 45);
        });
    act("select the item and delete it",
        [&]
        {
            list.SetCurSel(0);
            list.DeleteString(0);
        });
    act("keys in an empty list", [] { robot::PressKey(VK_DOWN); });
    act("item rectangles",
        [&]
        {
            list.ResetContent();
            AddMany(list);
            CRect item;
            for (const int index : {0, 5, 8, -1})
            {
                const int found = list.GetItemRect(index, &item);
                Print("item %d: %d, %ld %ld %ld %ld", index, found, static_cast<long>(item.left),
                      static_cast<long>(item.top), static_cast<long>(item.right), static_cast<long>(item.bottom));
            }
            Print("height %d", list.GetItemHeight(0));
            list.SetCurSel(7);
        });
    for (const UINT key : {VK_DOWN, VK_UP})
    {
        act("insert before the caret, then a key",
            [&list, key]
            {
                list.SetCurSel(1);
                list.InsertString(0, "before");
                Print("cur %d caret %d", list.GetCurSel(), list.GetCaretIndex());
                robot::PressKey(key);
            });
        act("delete the selected item, then a key",
            [&list, key]
            {
                list.SetCurSel(3);
                list.DeleteString(3);
                Print("cur %d caret %d", list.GetCurSel(), list.GetCaretIndex());
                robot::PressKey(key);
            });
    }
    act("delete with the last item in view",
        [&]
        {
            list.SendMessage(LB_SETTOPINDEX, 99);
            Print("top %d", list.GetTopIndex());
            while (list.GetCount() > 1)
            {
                list.DeleteString(0);
                Print("%d left, top %d", list.GetCount(), list.GetTopIndex());
            }
            AddMany(list);
        });
    act("drawing off and on",
        [&]
        {
            list.SetRedraw(FALSE);
            Print("visible %d", list.IsWindowVisible());
            list.SetRedraw(TRUE);
            Print("visible %d", list.IsWindowVisible());
        });
}

} // namespace

void Lists()
{
    {
        Stage stage("List box");
        stage.Edit(9);
        const CListBox& list = stage.List(10);
        AddCalls(stage, list);
        AddUse(stage, list);
        stage.Run();
    }
    Stage stage("Check list");
    stage.Edit(9);
    auto& list = stage.Add<CCheckListBox>(10, "ListBox", "",
                                          WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                                          60, WS_EX_CLIENTEDGE);
    AddCalls(stage, list);
    AddUse(stage, list);
    const auto state = [&] { PrintState(list); };
    stage.Act("set a mark", [&] { list.SetCheck(1, 1); });
    stage.Look(state);
    stage.Act("click a mark", [&] { robot::ClickAt(list.m_hWnd, 6, 6); });
    stage.Look(state);
    stage.Act("click it twice", [&] { robot::DoubleClickAt(list.m_hWnd, 6, 6); });
    stage.Look(state);
    stage.Act("space marks", [] { robot::PressKey(VK_SPACE); });
    stage.Look(state);
    stage.Run();
}
