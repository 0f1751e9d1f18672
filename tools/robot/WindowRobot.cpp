#include "robot/WindowRobot.h"

#include "commandline/Program.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace robot
{

namespace
{

constexpr UINT tickMilliseconds = 5;
constexpr int messageTextId = 0xFFFF;

Robot* driven = nullptr;
int boxesOfAct = 0;
HWND answeredBox = nullptr;

LPARAM KeyData(UINT virtualKey, bool up)
{
    const UINT data = 1U | (MapVirtualKeyA(virtualKey, MAPVK_VK_TO_VSC) << 16U) | (up ? 0xC0000000U : 0U);
    return static_cast<LPARAM>(data);
}

LPARAM Point(int x, int y)
{
    return MAKELPARAM(x, y);
}

void SendKey(UINT virtualKey, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtualKey);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

bool IsCombo(HWND list)
{
    return ClassOf(list) == "ComboBox";
}

std::string ItemOf(HWND list, int index)
{
    const bool combo = IsCombo(list);
    const LRESULT length = SendMessageA(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    std::string text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1, '\0');
    const LRESULT written = SendMessageA(list, combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(index),
                                         reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(std::max<LRESULT>(written, 0)));
    return text;
}

} // namespace

HWND ActiveDialog()
{
    HWND found = nullptr;
    const auto isDialog = [](HWND window, LPARAM result) -> BOOL
    {
        if (!IsWindowVisible(window) || !IsWindowEnabled(window) || ClassOf(window) != "#32770")
            return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
    };
    EnumThreadWindows(GetCurrentThreadId(), isDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::string TextOf(HWND window)
{
    std::string text(static_cast<size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
    const LRESULT written = SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(written));
    return text;
}

std::string ClassOf(HWND window)
{
    char name[128] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

RECT PlaceOf(HWND child)
{
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool IsMessageBox(HWND window)
{
    return ClassOf(window) == "#32770" && GetDlgItem(window, messageTextId) != nullptr;
}

std::string MessageTextOf(HWND box)
{
    return TextOf(GetDlgItem(box, messageTextId));
}

void BeginAct()
{
    boxesOfAct = 0;
}

// A box may be seen once more before the press has reached it.
void AnswerBox(HWND box, int most)
{
    if (box != answeredBox && ++boxesOfAct > most)
        throw std::runtime_error("message " + std::to_string(boxesOfAct) + " after one act: " + MessageTextOf(box));
    answeredBox = box;
    Press(GetDlgItem(box, IDOK));
}

std::vector<HWND> ChildrenOf(HWND dialog)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

HWND ChildAt(HWND dialog, size_t index)
{
    const std::vector<HWND> children = ChildrenOf(dialog);
    return index < children.size() ? children[index] : nullptr;
}

HWND ChildOfClass(HWND dialog, const std::string& windowClass, size_t index)
{
    for (HWND child : ChildrenOf(dialog))
    {
        if (lstrcmpiA(ClassOf(child).c_str(), windowClass.c_str()) == 0 && index-- == 0)
            return child;
    }
    return nullptr;
}

HWND ChildWithText(HWND dialog, const std::string& text)
{
    const std::vector<HWND> children = ChildrenOf(dialog);
    const auto found = std::ranges::find_if(children, [&](HWND child) { return TextOf(child) == text; });
    return found != children.end() ? *found : nullptr;
}

void Focus(HWND control)
{
    SendMessageA(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void PressKey(UINT virtualKey)
{
    HWND focus = GetFocus();
    PostMessageA(focus, WM_KEYDOWN, virtualKey, KeyData(virtualKey, false));
    PostMessageA(focus, WM_KEYUP, virtualKey, KeyData(virtualKey, true));
}

void HoldKey(UINT virtualKey)
{
    SendKey(virtualKey, 0);
}

void ReleaseKey(UINT virtualKey)
{
    SendKey(virtualKey, KEYEVENTF_KEYUP);
}

bool IsKeyHeld(UINT virtualKey)
{
    return GetKeyState(static_cast<int>(virtualKey)) < 0;
}

void TypeText(const std::string& text)
{
    for (const char ch : text)
        PostMessageA(GetFocus(), WM_CHAR, static_cast<unsigned char>(ch), 1);
}

void PressMnemonic(char letter)
{
    // A key-down message too would be translated into a second character.
    PostMessageA(GetFocus(), WM_SYSCHAR, static_cast<unsigned char>(letter), 0x20000001);
}

void Click(HWND control)
{
    RECT area = {};
    GetClientRect(control, &area);
    ClickAt(control, area.right / 2, area.bottom / 2);
}

void ClickAt(HWND window, int x, int y)
{
    PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, Point(x, y));
    PostMessageA(window, WM_LBUTTONUP, 0, Point(x, y));
}

void DoubleClickAt(HWND window, int x, int y)
{
    ClickAt(window, x, y);
    PostMessageA(window, WM_LBUTTONDBLCLK, MK_LBUTTON, Point(x, y));
    PostMessageA(window, WM_LBUTTONUP, 0, Point(x, y));
}

void Press(HWND button)
{
    PostMessageA(button, BM_CLICK, 0, 0);
}

void ReplaceText(HWND edit, const std::string& text)
{
    Focus(edit);
    HWND focus = GetFocus();
    SendMessageA(focus, EM_SETSEL, 0, -1);
    SendMessageA(focus, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text.c_str()));
}

void SelectItem(HWND list, int index)
{
    const bool combo = IsCombo(list);
    SendMessageA(list, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    const WORD code = combo ? CBN_SELCHANGE : LBN_SELCHANGE;
    PostMessageA(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), code), reinterpret_cast<LPARAM>(list));
}

std::vector<std::string> ItemsOf(HWND list)
{
    const int count = static_cast<int>(SendMessageA(list, IsCombo(list) ? CB_GETCOUNT : LB_GETCOUNT, 0, 0));
    std::vector<std::string> items;
    for (int index = 0; index < count; ++index)
        items.push_back(ItemOf(list, index));
    return items;
}

int SelectedItemOf(HWND list)
{
    return static_cast<int>(SendMessageA(list, IsCombo(list) ? CB_GETCURSEL : LB_GETCURSEL, 0, 0));
}

std::string LabelOf(HWND tree, HTREEITEM item)
{
    char label[512] = "";
    TVITEMA request = {};
    request.mask = TVIF_TEXT;
    request.hItem = item;
    request.pszText = label;
    request.cchTextMax = sizeof label;
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&request));
    return label;
}

Robot::Robot(UINT limitInMilliseconds)
    : m_timer(SetTimer(nullptr, 0, tickMilliseconds, Tick)),
      m_deadline(GetTickCount64() + commandline::Patience(limitInMilliseconds)),
      m_previous(std::exchange(driven, this))
{
    BeginAct();
}

Robot::~Robot()
{
    KillTimer(nullptr, m_timer);
    driven = m_previous;
}

Robot& Robot::On(const std::string& caption, std::function<void(HWND)> act)
{
    const auto ready = [caption]
    {
        HWND dialog = ActiveDialog();
        return dialog != nullptr && (caption.empty() || TextOf(dialog) == caption);
    };
    return When(caption, ready, [act = std::move(act)] { act(ActiveDialog()); });
}

Robot& Robot::When(const std::string& name, std::function<bool()> ready, std::function<void()> act)
{
    m_steps.push_back({name, std::move(ready), std::move(act)});
    return *this;
}

Robot& Robot::AnswerMessage(int button)
{
    const auto answer = [this, button]
    {
        HWND box = ActiveDialog();
        m_messages.push_back(MessageTextOf(box));
        Press(GetDlgItem(box, button));
    };
    return When(
        "message", [] { return IsMessageBox(ActiveDialog()); }, answer);
}

Robot& Robot::AnswerAll(int most)
{
    // Before the answer, which may bring the next box.
    const auto answer = [this, most]
    {
        AnswerAll(most);
        AnswerBox(ActiveDialog(), most);
    };
    return When(
        "box", [] { return IsMessageBox(ActiveDialog()); }, answer);
}

void Robot::Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    Robot* const robot = driven;
    if (robot == nullptr)
        return;
    // The platform called this, and nothing may be raised through it.
    try
    {
        robot->Run();
    }
    catch (const std::exception& error)
    {
        robot->m_log += std::string(" raised '") + error.what() + "'";
        robot->m_deadline = 0;
        robot->GiveUp();
    }
}

void Robot::Run()
{
    if (GetTickCount64() > m_deadline)
    {
        GiveUp();
        return;
    }
    if (m_steps.empty() || !m_steps.front().ready())
        return;
    // Taken off first: acting may open a modal loop in which the timer comes back here.
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    m_log += step.name + ";";
    step.act();
}

void Robot::GiveUp()
{
    m_timedOut = true;
    HWND dialog = ActiveDialog();
    if (dialog == nullptr)
        return;
    m_log +=
        " gave up before '" + (m_steps.empty() ? "the end" : m_steps.front().name) + "' at '" + TextOf(dialog) + "'";
    m_steps.clear();
    if (IsMessageBox(dialog))
        m_log += ": " + MessageTextOf(dialog);
    EndDialog(dialog, -1);
    PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

} // namespace robot
