#include "Acts.h"

#include "res/resource.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>
#include <vector>

namespace
{

UINT KeyNamed(const std::string& name)
{
    static const std::map<std::string, UINT, std::less<>> keys = {
        {"tab", VK_TAB},       {"return", VK_RETURN},  {"escape", VK_ESCAPE}, {"space", VK_SPACE},    {"down", VK_DOWN},
        {"up", VK_UP},         {"left", VK_LEFT},      {"right", VK_RIGHT},   {"home", VK_HOME},      {"end", VK_END},
        {"page-up", VK_PRIOR}, {"page-down", VK_NEXT}, {"delete", VK_DELETE}, {"backspace", VK_BACK}, {"f4", VK_F4},
        {"shift", VK_SHIFT},   {"alt", VK_MENU},
    };
    return name.size() == 1 ? static_cast<UINT>(name[0]) : keys.at(name);
}

UINT MessageNamed(const std::string& name)
{
    static const std::map<std::string, UINT, std::less<>> messages = {
        {"BM_GETSTATE", BM_GETSTATE},       {"BM_SETSTATE", BM_SETSTATE},         {"CB_SHOWDROPDOWN", CB_SHOWDROPDOWN},
        {"LB_GETTEXTLEN", LB_GETTEXTLEN},   {"LB_RESETCONTENT", LB_RESETCONTENT}, {"LB_SETITEMDATA", LB_SETITEMDATA},
        {"LB_SETTOPINDEX", LB_SETTOPINDEX}, {"CB_RESETCONTENT", CB_RESETCONTENT},
    };
    return messages.at(name);
}

std::string TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

// Calls what list boxes and combo boxes both have.
template <class CALL>
int OnItems(Words& words, const CALL& call)
{
    CWnd& window = words.Window();
    if (const auto* list = dynamic_cast<CListBox*>(&window))
        return call(*list);
    return call(dynamic_cast<CComboBox&>(window));
}

using Clicking = void (*)(HWND window, int x, int y);

void ClickItem(Words& words, Clicking click)
{
    const auto& list = words.As<CListBox>();
    CRect item;
    list.GetItemRect(words.Number(), &item);
    click(list.m_hWnd, 60, item.top + 3);
}

CRect PlaceOfItem(const CTreeCtrl& tree, HTREEITEM item, BOOL isLabel)
{
    CRect place;
    // The message takes the item from the place that it fills.
    *reinterpret_cast<HTREEITEM*>(&place) = item;
    if (tree.SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(isLabel), reinterpret_cast<LPARAM>(&place)) == 0)
        return {};
    return place;
}

// On the label, or a number of pixels from its start.
void ClickLabel(Words& words, Clicking click)
{
    const auto& tree = words.As<CTreeCtrl>();
    const CRect label = PlaceOfItem(tree, words.Item(), TRUE);
    // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult): the message fills the place
    click(tree.m_hWnd, label.left + (words.AtEnd() ? 4 : words.Number()), label.top + 4);
}

void PrintItems(const CListBox& list)
{
    std::string items;
    for (int index = 0; index < list.GetCount(); ++index)
    {
        CString text;
        list.GetText(index, text);
        items += std::string(index == 0 ? "" : "|") + text.GetString() + ":" + std::to_string(list.GetItemData(index));
    }
    Print("%d: %s cur %d caret %d top %d", list.GetDlgCtrlID(), items.c_str(), list.GetCurSel(), list.GetCaretIndex(),
          list.GetTopIndex());
}

void PrintTree(Words& words, const CTreeCtrl& tree)
{
    std::string states;
    for (const auto& [name, item] : words.On().items)
        states += " " + name + ":" + std::to_string(tree.GetItemState(item, ~0U));
    Print("selected %s, top %s, states%s", words.On().NameOf(tree.GetSelectedItem()).c_str(),
          words.On().NameOf(tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE)).c_str(), states.c_str());
}

void PrintState(Words& words, CWnd& window)
{
    if (const auto* button = dynamic_cast<CButton*>(&window))
        Print("%d: %d, tab stop %d", button->GetDlgCtrlID(), button->GetCheck(),
              (button->GetStyle() & WS_TABSTOP) != 0);
    else if (const auto* list = dynamic_cast<CListBox*>(&window))
        PrintItems(*list);
    else if (const auto* combo = dynamic_cast<CComboBox*>(&window))
        Print("%d: '%s' cur %d of %d open %d", combo->GetDlgCtrlID(), TextOf(*combo).c_str(), combo->GetCurSel(),
              combo->GetCount(), static_cast<int>(combo->SendMessage(CB_GETDROPPEDSTATE)));
    else if (const auto* tree = dynamic_cast<CTreeCtrl*>(&window))
        PrintTree(words, *tree);
    else
    {
        const LRESULT selection = window.SendMessage(EM_GETSEL);
        Print("%d: '%s' %d-%d", window.GetDlgCtrlID(), TextOf(window).c_str(), LOWORD(selection), HIWORD(selection));
    }
}

void PrintStates(Words& words)
{
    while (!words.AtEnd())
        PrintState(words, words.Window());
}

void PrintItemPlace(Words& words)
{
    const auto& list = words.As<CListBox>();
    const int index = words.Number();
    CRect item;
    const int found = list.GetItemRect(index, &item);
    Print("item %d: %d, %ld %ld %ld %ld, height %d", index, found, static_cast<long>(item.left),
          static_cast<long>(item.top), static_cast<long>(item.right), static_cast<long>(item.bottom),
          list.GetItemHeight(0));
}

void PrintTreePlace(Words& words)
{
    const auto& tree = words.As<CTreeCtrl>();
    HTREEITEM const item = words.Item();
    for (const BOOL isLabel : {TRUE, FALSE})
    {
        const CRect place = PlaceOfItem(tree, item, isLabel);
        // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the message fills the place
        Print("%ld %ld %ld %ld", static_cast<long>(place.left), static_cast<long>(place.top),
              static_cast<long>(place.right), static_cast<long>(place.bottom));
    }
}

void PrintRelativesInTree(Words& words)
{
    const auto& tree = words.As<CTreeCtrl>();
    HTREEITEM const item = words.Item();
    for (const UINT relation : {TVGN_ROOT, TVGN_NEXT, TVGN_PREVIOUS, TVGN_CHILD})
        Print("%u: %s", relation, words.On().NameOf(tree.GetNextItem(item, relation)).c_str());
    Print("has children %d", tree.ItemHasChildren(item));
    Print("before none: %s", words.On().NameOf(tree.GetPrevSiblingItem(nullptr)).c_str());
}

void PrintSize(Words& words)
{
    const CWnd& window = *CWnd::FromHandle(words.Handle());
    CRect outer;
    CRect inner;
    window.GetWindowRect(&outer);
    window.GetClientRect(&inner);
    Print("%d by %d, client %d by %d", outer.Width(), outer.Height(), inner.Width(), inner.Height());
}

void PrintCorner(Words& words)
{
    CWnd& window = words.Window();
    CRect place;
    CRect dialog;
    window.GetWindowRect(&place);
    window.GetParent()->GetWindowRect(&dialog);
    Print("%ld %ld", static_cast<long>(place.left - dialog.left), static_cast<long>(place.top - dialog.top));
}

// What texts measure in the font of the window, at the resolution of the screen.
void PrintTextSizes(Words& words)
{
    static constexpr const char* texts[] = {"",
                                            " ",
                                            "OK",
                                            "Cancel",
                                            "Hello World, AVAToTe",
                                            "iiiWWW",
                                            "0123456789",
                                            "a&b && c",
                                            "\xC4\xD6\xDC\xE4\xF6\xFC\xDF",
                                            "The quick brown fox jumps over the lazy dog.",
                                            "kWh/(m2a)",
                                            "tab\tand\xA0more"};
    const CWnd& window = words.Window();
    const CClientDC device(&window);
    const HGDIOBJ before = device.SelectObject(reinterpret_cast<HGDIOBJ>(window.SendMessage(WM_GETFONT)));
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(device.m_hDC, &metrics);
    Print("%d dots per inch, height %d", device.GetDeviceCaps(LOGPIXELSX), static_cast<int>(metrics.tmHeight));
    for (int index = 0; const char* text : texts)
    {
        const CSize size = device.GetTextExtent(text, static_cast<int>(std::strlen(text)));
        Print("text %d: %d by %d", index++, static_cast<int>(size.cx), static_cast<int>(size.cy));
    }
    device.SelectObject(before);
}

void PrintMulDiv(Words& words)
{
    const int number = words.Number();
    const int numerator = words.Number();
    const int denominator = words.Number();
    Print("%d * %d / %d = %d", number, numerator, denominator, MulDiv(number, numerator, denominator));
}

void PrintRelatives(Words& words)
{
    const CWnd& window = words.Window();
    const int id = window.GetDlgCtrlID();
    HWND dialog = ::GetParent(window.m_hWnd);
    Print("%s in %s", robot::ClassOf(window.m_hWnd).c_str(), robot::ClassOf(dialog).c_str());
    Print("%d children, %d", static_cast<int>(robot::ChildrenOf(dialog).size()),
          ::GetDlgItem(dialog, id) == window.m_hWnd);
    Print("none: %d %d", ::GetDlgItem(dialog, 77) == nullptr, ::IsWindow(nullptr));
    Print("child %d %d", ::IsChild(dialog, window.m_hWnd), ::IsChild(window.m_hWnd, dialog));
    for (const BOOL previous : {FALSE, TRUE})
        Print("next tab stop %d", ::GetDlgCtrlID(::GetNextDlgTabItem(dialog, window.m_hWnd, previous)));
}

// What is said before the dialog is there; after "fail" it is not.
void OpenInner(Words& words)
{
    Inner inner(110);
    inner.onOpen = [what = words.Rest()](HWND dialog)
    {
        ::SetWindowTextA(dialog, "Inner");
        std::istringstream rest(what);
        for (std::string word; rest >> word;)
        {
            if (word == "fail")
                return ::EndDialog(dialog, 3) == FALSE;
            ::AfxMessageBox(word.c_str());
        }
        return true;
    };
    Print("inner gives %d", static_cast<int>(inner.DoModal()));
}

void PrintTop(Words& words)
{
    Print("top '%s', outer enabled %d, active '%s'", robot::TextOf(robot::ActiveDialog()).c_str(),
          words.On().IsWindowEnabled(), robot::TextOf(::GetActiveWindow()).c_str());
}

void TakeQuit(Words& /*words*/)
{
    MSG message{};
    if (::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE)
        Print("quit %d is left", static_cast<int>(message.wParam));
    else
        Print("no quit is left");
}

void Drag(Words& words)
{
    const CWnd& window = words.Window();
    ::PostMessageA(window.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::PostMessageA(window.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(5, 500));
}

void InsertInTree(Words& words)
{
    const auto& tree = words.As<CTreeCtrl>();
    HTREEITEM const parent = words.Item();
    while (!words.AtEnd())
    {
        const std::string name = words.Word();
        words.On().items[name] = tree.InsertItem(name.c_str(), 0, 0, parent);
    }
}

void GivePictures(Words& words)
{
    CImageList& pictures = words.On().pictures;
    pictures.Create(16, 16, 0, 0, 8);
    words.As<CTreeCtrl>().SetImageList(&pictures, TVSIL_NORMAL);
}

void ClickAt(Words& words, Clicking click)
{
    HWND const window = words.Handle();
    const int x = words.Number();
    click(window, x, words.Number());
}

int Insert(Words& words)
{
    return OnItems(words,
                   [&](const auto& list)
                   {
                       const int index = words.Number();
                       return list.InsertString(index, words.Rest().c_str());
                   });
}

void Fill(Words& words)
{
    OnItems(words,
            [&](const auto& list)
            {
                while (!words.AtEnd())
                    list.InsertString(-1, words.Word().c_str());
                return 0;
            });
}

void Replace(Words& words)
{
    HWND const edit = words.Handle();
    robot::ReplaceText(edit, words.Rest());
}

void Resize(Words& words)
{
    const CWnd& window = words.Window();
    const int width = words.Number();
    window.SetWindowPos(nullptr, 0, 0, width, words.Number(), SWP_NOZORDER | SWP_NOMOVE);
}

void MoveTo(Words& words)
{
    const CWnd& window = words.Window();
    const int x = words.Number();
    const int y = words.Number();
    const int width = words.Number();
    window.SetWindowPos(nullptr, x, y, width, words.Number(), SWP_NOZORDER);
}

void SelectText(Words& words)
{
    auto& edit = words.As<CEdit>();
    const int start = words.Number();
    edit.SetSel(start, words.Number());
}

void Mark(Words& words)
{
    CWnd& window = words.Window();
    const int first = words.Number();
    if (auto* button = dynamic_cast<CButton*>(&window))
        button->SetCheck(first);
    else
        dynamic_cast<CCheckListBox&>(window).SetCheck(first, words.Number());
}

int Send(Words& words)
{
    const CWnd& window = words.Window();
    const UINT message = MessageNamed(words.Word());
    const int parameter = words.AtEnd() ? 0 : words.Number();
    return static_cast<int>(
        window.SendMessage(message, static_cast<WPARAM>(parameter), words.AtEnd() ? 0 : words.Number()));
}

int EndDialogOf(Words& words)
{
    HWND const dialog = words.Handle();
    return ::EndDialog(dialog, words.Number());
}

// What is done.
const std::map<std::string, void (*)(Words& words), std::less<>> deeds = {
    {"nothing", [](Words& /*words*/) {}},
    {"say", [](Words& words) { Print("%s", words.Rest().c_str()); }},
    // By a user.
    {"go", [](Words& words) { robot::Focus(words.Handle()); }},
    {"click", [](Words& words) { robot::Click(words.Handle()); }},
    {"click-at", [](Words& words) { ClickAt(words, robot::ClickAt); }},
    {"double-click-at", [](Words& words) { ClickAt(words, robot::DoubleClickAt); }},
    {"click-item", [](Words& words) { ClickItem(words, robot::ClickAt); }},
    {"double-click-item", [](Words& words) { ClickItem(words, robot::DoubleClickAt); }},
    {"click-label", [](Words& words) { ClickLabel(words, robot::ClickAt); }},
    {"double-click-label", [](Words& words) { ClickLabel(words, robot::DoubleClickAt); }},
    {"drag", Drag},
    {"press", [](Words& words) { robot::Press(words.Handle()); }},
    {"answer", [](Words& /*words*/) { robot::Press(::GetDlgItem(robot::ActiveDialog(), IDOK)); }},
    {"close", [](Words& /*words*/) { ::PostMessageA(robot::ActiveDialog(), WM_CLOSE, 0, 0); }},
    {"key", [](Words& words) { robot::PressKey(KeyNamed(words.Word())); }},
    {"key-to-dialog", [](Words& words) { ::PostMessageA(words.On().m_hWnd, WM_KEYDOWN, KeyNamed(words.Word()), 1); }},
    {"type", [](Words& words) { robot::TypeText(words.Rest()); }},
    {"backspace", [](Words& /*words*/) { robot::TypeText("\b"); }},
    {"replace", Replace},
    {"access", [](Words& words) { robot::PressMnemonic(words.Word()[0]); }},
    {"strike", [](Words& words) { Strike(KeyNamed(words.Word())); }},
    {"hold", [](Words& words) { robot::HoldKey(KeyNamed(words.Word())); }},
    {"release", [](Words& words) { robot::ReleaseKey(KeyNamed(words.Word())); }},
    // By a program.
    {"focus", [](Words& words) { ::SetFocus(words.Handle()); }},
    {"group", [](Words& words) { words.Window().ModifyStyle(0, WS_GROUP); }},
    {"move", MoveTo},
    {"resize", Resize},
    {"set-text", [](Words& words) { words.Window().SetWindowText(words.Rest().c_str()); }},
    {"set-no-text", [](Words& words) { words.Window().SetWindowText(nullptr); }},
    {"select", SelectText},
    {"replace-selection",
     [](Words& words)
     {
         const CWnd& window = words.Window();
         window.SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(words.Rest().c_str()));
     }},
    {"clear", [](Words& words) { words.As<CEdit>().Clear(); }},
    {"mark", Mark},
    {"fill", Fill},
    {"empty", [](Words& words) { OnItems(words, [](const auto& list) { return list.ResetContent(), 0; }); }},
    {"drawing", [](Words& words) { words.Window().SetRedraw(words.Word() == "on"); }},
    {"insert-in-tree", InsertInTree},
    {"pictures", GivePictures},
    {"open", OpenInner},
    {"tell", [](Words& words) { ::AfxMessageBox(words.Rest().c_str()); }},
    {"ask",
     [](Words& words) { Print("message gives %d", ::MessageBoxA(words.Handle(), "told", "Message", MB_ICONERROR)); }},
    {"quit", [](Words& words) { ::PostQuitMessage(words.Number()); }},
    {"take-quit", TakeQuit},
    // What is printed.
    {"state", PrintStates},
    {"text", [](Words& words) { Print("'%s'", TextOf(words.Window()).c_str()); }},
    {"corner", PrintCorner},
    {"size", PrintSize},
    {"text-sizes", PrintTextSizes},
    {"mul-div", PrintMulDiv},
    {"relatives", PrintRelatives},
    {"item-place", PrintItemPlace},
    {"tree-place", PrintTreePlace},
    {"tree-relatives", PrintRelativesInTree},
    {"top", PrintTop},
    {"message", [](Words& /*words*/) { Print("message '%s'", robot::MessageTextOf(robot::ActiveDialog()).c_str()); }},
};

// Calls that give something.
const std::map<std::string, int (*)(Words& words), std::less<>> calls = {
    {"enable", [](Words& words) -> int { return words.Window().EnableWindow(TRUE); }},
    {"disable", [](Words& words) -> int { return words.Window().EnableWindow(FALSE); }},
    {"show", [](Words& words) -> int { return words.Window().ShowWindow(SW_SHOW); }},
    {"hide", [](Words& words) -> int { return words.Window().ShowWindow(SW_HIDE); }},
    {"take-focus", [](Words& words) -> int { return words.Window().SetFocus() != nullptr; }},
    {"no-tab-stop", [](Words& words) -> int { return words.Window().ModifyStyle(WS_TABSTOP, 0); }},
    {"is-enabled", [](Words& words) -> int { return ::IsWindowEnabled(words.Handle()); }},
    {"is-visible", [](Words& words) -> int { return words.Window().IsWindowVisible(); }},
    {"send", Send},
    {"add", [](Words& words)
     { return OnItems(words, [&](const auto& list) { return list.AddString(words.Rest().c_str()); }); }},
    {"insert", Insert},
    {"delete",
     [](Words& words) { return OnItems(words, [&](const auto& list) { return list.DeleteString(words.Number()); }); }},
    {"choose",
     [](Words& words) { return OnItems(words, [&](const auto& list) { return list.SetCurSel(words.Number()); }); }},
    {"data", [](Words& words) { return static_cast<int>(words.As<CListBox>().GetItemData(words.Number())); }},
    {"tree-select", [](Words& words) -> int { return words.As<CTreeCtrl>().SelectItem(words.Item()); }},
    {"expand", [](Words& words) -> int { return words.As<CTreeCtrl>().Expand(words.Item(), TVE_EXPAND); }},
    {"collapse", [](Words& words) -> int { return words.As<CTreeCtrl>().Expand(words.Item(), TVE_COLLAPSE); }},
    {"delete-all",
     [](Words& words) -> int
     {
         words.On().items.clear();
         return words.As<CTreeCtrl>().DeleteAllItems();
     }},
    {"end", EndDialogOf},
    {"destroy", [](Words& words) -> int { return ::DestroyWindow(words.Handle()); }},
};

std::function<void()> ReadAct(Stage& stage, std::string text)
{
    const bool isPrinted = text.starts_with("? ");
    if (isPrinted)
        text.erase(0, 2);
    const std::string name = text.substr(0, text.find(' '));
    const std::string rest = text.substr(std::min(text.size(), name.size() + 1));
    if (const auto deed = deeds.find(name); deed != deeds.end() && !isPrinted)
    {
        return [&stage, rest, doing = deed->second]
        {
            Words words(stage, rest);
            doing(words);
        };
    }
    const auto call = calls.find(name);
    if (call == calls.end())
        throw std::runtime_error("no such act: " + text);
    return [&stage, rest, isPrinted, calling = call->second]
    {
        Words words(stage, rest);
        const int given = calling(words);
        if (isPrinted)
            Print("gives %d", given);
    };
}

} // namespace

std::string Words::Word()
{
    std::string word;
    m_text >> word;
    return word;
}

int Words::Number()
{
    return std::stoi(Word());
}

std::string Words::Rest()
{
    std::string rest;
    std::getline(m_text >> std::ws, rest);
    return rest;
}

HWND Words::Handle()
{
    const std::string word = Word();
    if (word == "top")
        return robot::ActiveDialog();
    if (word == "focus")
        return ::GetFocus();
    if (word == "none")
        return nullptr;
    if (word == "field")
        return ::GetWindow(Handle(), GW_CHILD);
    return word == "dialog" ? m_stage.m_hWnd : ::GetDlgItem(m_stage.m_hWnd, std::stoi(word));
}

std::function<void()> ReadActs(Stage& stage, const std::string& line)
{
    std::vector<std::function<void()>> acts;
    const std::string text = line.substr(0, line.find(" -- "));
    for (size_t start = 0; start < text.size();)
    {
        const size_t end = std::min(text.find("; ", start), text.size());
        acts.push_back(ReadAct(stage, text.substr(start, end - start)));
        start = end + 2;
    }
    return [acts = std::move(acts)]
    {
        for (const auto& act : acts)
            act();
    };
}
