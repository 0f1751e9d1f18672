#include "CaseRun.h"

#include "CaseWords.h"

#include <set>

namespace
{

struct Operand
{
    std::string text; // what follows the name of the control
    HWND window = nullptr;

    int Number() const { return std::stoi(text); }
};

LRESULT Send(const Operand& to, UINT message, WPARAM wParam = 0)
{
    return SendMessageA(to.window, message, wParam, 0);
}

UINT KeyOf(const std::string& name)
{
    static const std::map<std::string, UINT> keys = {
        {"RETURN", VK_RETURN}, {"ESCAPE", VK_ESCAPE}, {"SPACE", VK_SPACE}, {"TAB", VK_TAB},
        {"UP", VK_UP},         {"DOWN", VK_DOWN},     {"A", 'A'},
    };
    return keys.at(name);
}

// A click on an item, so far from the list's left edge. All items are as high as the first.
void ClickItem(const Operand& on, int x)
{
    RECT first = {};
    SendMessageA(on.window, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
    const int height = first.bottom - first.top;
    robot::ClickAt(on.window, x, first.top + on.Number() * height + height / 2);
}

constexpr int markX = 6;
constexpr int textX = 60;
constexpr int firstItemY = 5;

// Steps on a control.
const std::map<std::string, void (*)(const Operand& on)> controlSteps = {
    {"click", [](const Operand& on) { robot::Click(on.window); }},
    {"press", [](const Operand& on) { robot::Press(on.window); }},
    {"focus", [](const Operand& on) { robot::Focus(on.window); }},
    {"select", [](const Operand& on) { robot::SelectItem(on.window, on.Number()); }},
    {"choose", [](const Operand& on) { Send(on, LB_SETCURSEL, static_cast<WPARAM>(on.Number())); }},
    {"mark", [](const Operand& on) { ClickItem(on, markX); }},
    {"point", [](const Operand& on) { ClickItem(on, textX); }},
    {"doubleclick", [](const Operand& on) { robot::DoubleClickAt(on.window, textX, firstItemY); }},
    {"doublemark", [](const Operand& on) { robot::DoubleClickAt(on.window, markX, firstItemY); }},
    {"enter", [](const Operand& on) { robot::ReplaceText(on.window, on.text); }},
    {"down", [](const Operand& on) { Send(on, BM_SETSTATE, TRUE); }},
    {"up", [](const Operand& on) { Send(on, BM_SETSTATE, FALSE); }},
    {"keyup", [](const Operand& on) { Send(on, WM_KEYUP, KeyOf(on.text)); }},
    {"caption", [](const Operand& on) { SetWindowTextA(on.window, on.text.c_str()); }},
    {"enable", [](const Operand& on) { EnableWindow(on.window, TRUE); }},
    {"disable", [](const Operand& on) { EnableWindow(on.window, FALSE); }},
};

void PressButton(int button)
{
    robot::Press(GetDlgItem(robot::ActiveDialog(), button));
}

// Steps on the dialog or on the focus.
const std::map<std::string, void (*)(const std::string& text)> dialogSteps = {
    {"type", [](const std::string& text) { robot::TypeText(text); }},
    {"key", [](const std::string& text) { robot::PressKey(KeyOf(text)); }},
    {"hold", [](const std::string& text) { robot::HoldKey(KeyOf(text)); }},
    {"ok", [](const std::string&) { PressButton(IDOK); }},
    {"cancel", [](const std::string&) { PostMessageA(robot::ActiveDialog(), WM_COMMAND, IDCANCEL, 0); }},
    {"close", [](const std::string&) { PostMessageA(robot::ActiveDialog(), WM_CLOSE, 0, 0); }},
    {"end", [](const std::string&) { EndDialog(robot::ActiveDialog(), IDOK); }},
    {"destroy", [](const std::string&) { DestroyWindow(robot::ActiveDialog()); }},
    {"unfocus", [](const std::string&) { SetFocus(nullptr); }},
    {"command",
     [](const std::string& text)
     {
         HWND front = robot::ActiveDialog();
         HWND dialog = text == "below" ? GetWindow(front, GW_OWNER) : front;
         SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(0, 0x77), 1);
     }},
};

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE));
}

// The field in a combo box counts as the box.
bool HasFocus(HWND window)
{
    return GetFocus() == window || IsChild(window, GetFocus()) != FALSE;
}

std::string InHexDigits(DWORD number, int digits)
{
    char text[9] = "";
    std::snprintf(text, sizeof text, "%0*lX", digits, static_cast<unsigned long>(number));
    return text;
}

std::string InPixels(LONG width, LONG height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

// The size of a text in the font of a window.
std::string ExtentOf(const std::string& text, HWND window)
{
    HDC context = GetDC(window);
    SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageA(window, WM_GETFONT, 0, 0)));
    SIZE extent = {};
    GetTextExtentPoint32A(context, text.c_str(), static_cast<int>(text.size()), &extent);
    ReleaseDC(window, context);
    return InPixels(extent.cx, extent.cy);
}

// What a control may be.
const std::map<std::string, bool (*)(HWND window)> states = {
    {"enabled", [](HWND window) { return IsWindowEnabled(window) != FALSE; }},
    {"disabled", [](HWND window) { return IsWindowEnabled(window) == FALSE; }},
    {"shown", [](HWND window) { return IsWindowVisible(window) != FALSE; }},
    {"hidden", [](HWND window) { return IsWindowVisible(window) == FALSE; }},
    {"checked", [](HWND window) { return SendMessageA(window, BM_GETCHECK, 0, 0) == BST_CHECKED; }},
    {"unchecked", [](HWND window) { return SendMessageA(window, BM_GETCHECK, 0, 0) == BST_UNCHECKED; }},
    {"focused", [](HWND window) { return HasFocus(window); }},
    {"unfocused", [](HWND window) { return !HasFocus(window); }},
    {"released", [](HWND window) { return (SendMessageA(window, BM_GETSTATE, 0, 0) & BST_PUSHED) == 0; }},
    {"tabstop", [](HWND window) { return (StyleOf(window) & WS_TABSTOP) != 0; }},
    {"skipped", [](HWND window) { return (StyleOf(window) & WS_TABSTOP) == 0; }},
    {"group", [](HWND window) { return (StyleOf(window) & WS_GROUP) != 0; }},
    {"member", [](HWND window) { return (StyleOf(window) & WS_GROUP) == 0; }},
    {"sunken", [](HWND window) { return (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0; }},
    {"default",
     [](HWND window) { return LOWORD(SendMessageA(GetParent(window), DM_GETDEFID, 0, 0)) == GetDlgCtrlID(window); }},
};

// What else there is to see of a control, as a text.
const std::map<std::string, std::string (*)(HWND window)> texts = {
    {"=", [](HWND window) { return robot::TextOf(window); }},
    {"class", [](HWND window) { return robot::ClassOf(window); }},
    {"id", [](HWND window) { return std::to_string(GetDlgCtrlID(window)); }},
    {"selected", [](HWND window) { return std::to_string(robot::SelectedItemOf(window)); }},
    {"style", [](HWND window) { return InHexDigits(StyleOf(window), 8); }},
    // The part of the style that is the class's own.
    {"kind", [](HWND window) { return InHexDigits(StyleOf(window) & 0xFFFFU, 4); }},
    {"items",
     [](HWND window)
     {
         std::string line;
         const Texts items = robot::ItemsOf(window);
         for (const std::string& item : items)
             line += (&item == items.data() ? "" : " / ") + item;
         return line;
     }},
};

} // namespace

void CaseRun::Run(const Case& one)
{
    m_form = {};
    m_file = one.file;
    for (const CaseLine& line : one.lines)
    {
        const testing::ScopedTrace trace(m_file.c_str(), line.number, line.text);
        Take(line);
    }
    Show();
}

void CaseRun::Take(const CaseLine& line)
{
    std::string rest = line.text;
    Exchange(rest, "\\n", "\n");
    Exchange(rest, "$folder", folder.Path());
    WriteOutRuns(rest);
    const bool isTogether = rest.starts_with("& ");
    rest.erase(0, isTogether ? 2 : 0);
    const std::string word = TakeWord(rest);
    if (word == "open")
    {
        Show();
        m_isOpen = true;
        m_input = rest;
        m_title = CaseForm::TitleOf("");
    }
    else if (!m_isOpen || !(TakeEnd(word, rest) || TakeWait(word, rest) || TakeStep(line, word, rest, isTogether)))
    {
        Show();
        EXPECT_TRUE(m_form.Take(word, rest)) << "unknown word " << word;
    }
}

bool CaseRun::TakeEnd(const std::string& word, const std::string& rest)
{
    static const std::map<std::string, std::set<int>> answers = {
        {"result", {1, 2}}, {"changed", {1}}, {"unchanged", {2}}, {"cancelled", {0}}};
    const auto expected = answers.find(word);
    if (expected == answers.end())
        return false;
    m_end = [expected = expected->second, rest](int answer, const std::string& given)
    {
        EXPECT_TRUE(expected.contains(answer)) << "the answer is " << answer;
        EXPECT_EQ(given, rest);
    };
    return true;
}

bool CaseRun::TakeWait(const std::string& word, const std::string& rest)
{
    if (word == "in")
    {
        m_title = CaseForm::TitleOf(rest);
        AddStage();
    }
    else if (word == "message")
    {
        m_messages.push_back(rest);
        m_stages.push_back({[](robot::Robot& user, const Act&) { user.AnswerMessage(); }, {}, true});
    }
    else if (word == "release")
    {
        const UINT key = KeyOf(rest);
        AddKeyStage([key] { return robot::IsKeyHeld(key); }, [key] { robot::ReleaseKey(key); });
        AddKeyStage([key] { return !robot::IsKeyHeld(key); }, [] {});
    }
    else
        return false;
    return true;
}

void CaseRun::AddStage()
{
    m_stages.push_back(
        {[title = m_title](robot::Robot& user, const Act& act) { user.On(title, [act](HWND) { act(); }); }});
}

void CaseRun::AddKeyStage(std::function<bool()> ready, Act act)
{
    m_stages.push_back({[ready = std::move(ready), act = std::move(act)](robot::Robot& user, const Act&)
                        { user.When("key", ready, act); },
                        {},
                        true});
}

bool CaseRun::TakeStep(const CaseLine& line, const std::string& word, const std::string& rest, bool isTogether)
{
    Act act;
    bool isLook = false;
    if (const auto step = dialogSteps.find(word); step != dialogSteps.end())
        act = [step = step->second, rest] { step(rest); };
    else if (const auto onControl = controlSteps.find(word); onControl != controlSteps.end())
        act = [this, step = onControl->second, rest]
        {
            Operand on{rest};
            on.window = m_form.Window(TakeWord(on.text));
            step(on);
        };
    else if (isLook = word == "cursor" || m_form.Has(word); isLook)
        act = [this, word, rest] { Look(word, rest); };
    else
        return false;
    if (m_stages.empty() || (m_stages.back().isFull && !isTogether))
        AddStage();
    m_stages.back().acts.emplace_back(
        [act, line, file = m_file]
        {
            const testing::ScopedTrace trace(file.c_str(), line.number, line.text);
            act();
        });
    m_stages.back().isFull = m_stages.back().isFull || !isLook;
    return true;
}

void CaseRun::Look(const std::string& name, const std::string& rest) const
{
    if (name == "cursor")
    {
        EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, rest == "wait" ? IDC_WAIT : IDC_ARROW));
        return;
    }
    std::string expected = rest;
    const std::string word = TakeWord(expected);
    HWND window = m_form.Window(name);
    if (word == "fits")
    {
        const RECT place = robot::PlaceOf(window);
        EXPECT_EQ(InPixels(place.right - place.left, place.bottom - place.top), ExtentOf(expected, window));
        return;
    }
    if (const auto state = states.find(word); state != states.end())
        EXPECT_TRUE(state->second(window)) << name << " is not " << word;
    else
        EXPECT_EQ(texts.at(word)(window), expected) << name;
}

void CaseRun::Show()
{
    if (!std::exchange(m_isOpen, false))
        return;
    m_form.Write(folder);
    initialise("doc.rtf", folder.Path().c_str(), folder.Path().c_str());
    if (!m_form.Defines().empty())
        setDefine(m_form.Defines().c_str());
    // A robot a run: its log would grow.
    robot::Robot user;
    for (const Stage& stage : m_stages)
        stage.add(user,
                  [&stage]
                  {
                      for (const Act& act : stage.acts)
                          act();
                  });
    constexpr int room = 100'000;
    GuardedBuffer buffer(room);
    const int answer = symbol(m_input.c_str(), buffer.Data(), buffer.Size());
    EXPECT_TRUE(user.Done()) << user.Log();
    EXPECT_EQ(user.Messages(), m_messages);
    if (m_end)
        m_end(answer, buffer.Text());
    m_stages.clear();
    m_messages.clear();
    m_end = nullptr;
}
