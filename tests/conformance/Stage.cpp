#include "Stage.h"

#include "res/resource.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <stdexcept>

namespace
{

int depth = 0;
Digest* printedInto = nullptr;

struct MessageName
{
    const char* name;
    UINT message;
    bool withParameter;
};

// For each message of the list the parameter printed is the same over all kinds of windows.
constexpr MessageName names[] = {
    {"INITDIALOG", WM_INITDIALOG, false},
    {"ACTIVATE", WM_ACTIVATE, true},
    {"SETFOCUS", WM_SETFOCUS, false},
    {"KILLFOCUS", WM_KILLFOCUS, false},
    {"ENABLE", WM_ENABLE, true},
    {"SHOWWINDOW", WM_SHOWWINDOW, true},
    {"CLOSE", WM_CLOSE, false},
    {"DESTROY", WM_DESTROY, false},
    {"NCDESTROY", WM_NCDESTROY, false},
    {"KEYDOWN", WM_KEYDOWN, true},
    {"KEYUP", WM_KEYUP, true},
    {"CHAR", WM_CHAR, true},
    {"SYSKEYDOWN", WM_SYSKEYDOWN, true},
    {"SYSCHAR", WM_SYSCHAR, true},
    {"LBUTTONDOWN", WM_LBUTTONDOWN, false},
    {"LBUTTONUP", WM_LBUTTONUP, false},
    {"LBUTTONDBLCLK", WM_LBUTTONDBLCLK, false},
    {"CAPTURECHANGED", WM_CAPTURECHANGED, false},
    {"CLEAR", WM_CLEAR, false},
    {"GETDEFID", DM_GETDEFID, false},
    {"SETDEFID", DM_SETDEFID, true},
    {"SETCHECK", BM_SETCHECK, true},
    {"SETSTATE", BM_SETSTATE, true},
    {"SETSTYLE", BM_SETSTYLE, true},
    {"CLICK", BM_CLICK, false},
    {"SETSEL", EM_SETSEL, false},
};

void PrintLine(const std::string& line)
{
    if (printedInto != nullptr)
        printedInto->Add(line);
    else
        std::printf("%s\n", line.c_str());
}

std::string WindowName(HWND window)
{
    if (window == nullptr)
        return "none";
    if (robot::ClassOf(window) == "#32770")
        return "dialog";
    std::string name = std::to_string(::GetDlgCtrlID(window));
    // The field inside a combo box.
    if (HWND parent = ::GetParent(window); parent != nullptr && robot::ClassOf(parent) == "ComboBox")
        name += " in " + std::to_string(::GetDlgCtrlID(parent));
    return name;
}

std::string Described(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        return "COMMAND of " + std::to_string(LOWORD(wParam)) + " code " + std::to_string(HIWORD(wParam)) +
               (lParam != 0 ? "" : " without a control");
    if (message == WM_NOTIFY)
    {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        const int code = static_cast<int>(header->code);
        const bool isTree = code <= static_cast<int>(TVN_SELCHANGINGA) && code >= static_cast<int>(TVN_ITEMEXPANDEDA);
        // The tree also asks how to draw; that is no event.
        static constexpr UINT told[] = {NM_CLICK, NM_DBLCLK, NM_SETFOCUS, NM_KILLFOCUS, TVN_KEYDOWN};
        bool isTold = isTree;
        for (const UINT known : told)
            isTold = isTold || known == header->code;
        if (!isTold)
            return {};
        std::string text = "NOTIFY of " + std::to_string(wParam) + " code " + std::to_string(code);
        if (isTree)
            text += " action " + std::to_string(reinterpret_cast<const NMTREEVIEWA*>(lParam)->action);
        return text;
    }
    if (message == WM_NEXTDLGCTL)
        return lParam != 0 ? "NEXTDLGCTL to " + WindowName(reinterpret_cast<HWND>(wParam))
                           : "NEXTDLGCTL " + std::string(wParam != 0 ? "back" : "on");
    for (const MessageName& known : names)
    {
        if (known.message == message)
            return known.name + (known.withParameter ? " " + std::to_string(LOWORD(wParam)) : "");
    }
    return {};
}

} // namespace

void Print(const char* format, ...)
{
    char text[512];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format,
                   arguments); // NOLINT(clang-analyzer-valist.Uninitialized): va_start is above
    va_end(arguments);
    PrintLine(std::string(static_cast<size_t>(depth) * 2, ' ') + text);
}

void PrintInto(Digest* digest)
{
    printedInto = digest;
}

RecordedMessage::RecordedMessage(int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    // What the windows inside a combo box tell it is its own affair, and so is how a dialog looks for a menu.
    const bool isInner = id != 0 ? message == WM_COMMAND || message == DM_GETDEFID : message == WM_CAPTURECHANGED;
    const std::string text = isInner ? std::string() : Described(message, wParam, lParam);
    m_isPrinted = !text.empty();
    if (!m_isPrinted)
        return;
    Print("%s %s", id != 0 ? std::to_string(id).c_str() : "dialog", text.c_str());
    ++depth;
}

RecordedMessage::~RecordedMessage()
{
    if (m_isPrinted)
        --depth;
}

Inner::Inner(int editId) : Recorded(IDD_PROPERTIES), m_editId(editId) {}

BOOL Inner::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_edit.CreateEx(WS_EX_CLIENTEDGE, "Edit", "inner", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(5, 5, 90, 25), this,
                    static_cast<UINT>(m_editId));
    m_ok.Create("OK", WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(5, 30, 90, 50), this, IDOK);
    return onOpen ? static_cast<BOOL>(onOpen(m_hWnd)) : TRUE;
}

Stage::Stage(std::string title) : Recorded(IDD_PROPERTIES), m_title(std::move(title)) {}

CButton& Stage::Button(int id, const std::string& text, DWORD style)
{
    return Add<CButton>(id, "Button", text, style | WS_TABSTOP);
}

CButton& Stage::Ok()
{
    return Button(IDOK, "OK", BS_DEFPUSHBUTTON);
}

CButton& Stage::Cancel()
{
    return Button(IDCANCEL, "Cancel");
}

CEdit& Stage::Edit(int id)
{
    return Add<CEdit>(id, "Edit", "", WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, 20, WS_EX_CLIENTEDGE);
}

CListBox& Stage::List(int id)
{
    return Add<CListBox>(id, "ListBox", "", LBS_STANDARD | WS_TABSTOP | WS_VSCROLL, 60, WS_EX_CLIENTEDGE);
}

CCheckListBox& Stage::CheckList(int id)
{
    return Add<CCheckListBox>(id, "ListBox", "",
                              WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, 60,
                              WS_EX_CLIENTEDGE);
}

CComboBox& Stage::Combo(int id, DWORD style)
{
    return Add<CComboBox>(id, "ComboBox", "", style | WS_TABSTOP | WS_VSCROLL | CBS_NOINTEGRALHEIGHT, 80,
                          WS_EX_CLIENTEDGE);
}

CStatic& Stage::Static(int id, const std::string& text)
{
    return Add<CStatic>(id, "Static", text, SS_LEFT);
}

CTreeCtrl& Stage::Tree(int id)
{
    return Add<CTreeCtrl>(id, "SysTreeView32", "",
                          TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP,
                          120);
}

CWnd& Stage::Control(int id)
{
    const auto added = std::ranges::find(m_controls, id, &Added::id);
    if (added == m_controls.end())
        throw std::runtime_error("no control " + std::to_string(id) + " in " + m_title);
    return *added->window;
}

std::string Stage::NameOf(HTREEITEM item) const
{
    if (item == nullptr)
        return "none";
    const auto found = std::ranges::find(items, item, [](const auto& named) { return named.second; });
    return found != items.end() ? found->first : "unknown";
}

HTREEITEM Stage::ItemNamed(const std::string& name) const
{
    if (name == "none")
        return nullptr;
    return name == "root" ? TVI_ROOT : items.at(name);
}

void Stage::Act(const std::string& title, std::function<void()> act)
{
    Look(
        [title, act = std::move(act)]
        {
            PrintLine("# " + title);
            act();
        });
    Look([] { PrintLine("= focus " + WindowName(::GetFocus())); });
}

void Stage::Look(std::function<void()> look)
{
    m_robot.When(
        "act", [] { return robot::ActiveDialog() != nullptr; }, std::move(look));
}

void Stage::Run()
{
    PrintLine("");
    PrintLine("## " + m_title);
    for (const std::string& note : m_notes)
        PrintLine(note);
    Look([this] { EndDialog(7); });
    const INT_PTR result = DoModal();
    const char* const end = m_robot.Done() ? "done" : m_robot.HasGivenUp() ? "given up" : "before its acts did";
    Print("gives %d, %s", static_cast<int>(result), end);
}

BOOL Stage::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetWindowText(m_title.c_str());
    SetWindowPos(nullptr, 0, 0, 500, 600, SWP_NOZORDER);
    int top = 5;
    for (Added& control : m_controls)
    {
        const CRect place(10, top, 210, top + control.height);
        top += control.height + 5;
        control.window->CreateEx(control.exStyle, control.windowClass.c_str(), control.text.c_str(),
                                 control.style | WS_CHILD | WS_VISIBLE, place, this, static_cast<UINT>(control.id));
        control.window->SendMessage(WM_SETFONT, static_cast<WPARAM>(SendMessage(WM_GETFONT)), TRUE);
    }
    if (onOpen)
        onOpen();
    return TRUE;
}

BOOL Stage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const auto click = onClick.find(LOWORD(wParam));
    if (HIWORD(wParam) == BN_CLICKED && click != onClick.end())
        click->second();
    return CDialog::OnCommand(wParam, lParam);
}

void Strike(UINT key)
{
    robot::HoldKey(key);
    robot::ReleaseKey(key);
}
