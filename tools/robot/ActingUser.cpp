#include "robot/ActingUser.h"

#include "robot/WindowRobot.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <utility>

namespace robot
{

namespace
{

constexpr int mostActs = 40;

ActingUser* current = nullptr;

// An act taken apart.
struct ActWord
{
    char act = 'o';
    char target = '0';
    std::string text; // after the comma

    explicit ActWord(const std::string& word) : act(word[0]), target(word.size() > 1 ? word[1] : '0')
    {
        const size_t comma = std::min(word.find(',', 1), word.size());
        text = word.substr(std::min(comma + 1, word.size()));
    }
    int Number() const { return static_cast<int>(std::strtol(text.c_str(), nullptr, 10)); }
};

size_t IndexOf(char target)
{
    return static_cast<unsigned char>(target - '0');
}

HWND ChildFor(HWND dialog, const ActWord& word)
{
    if (word.act == 'b')
        return ChildOfClass(dialog, "Button", IndexOf(word.target));
    if (word.act == 'l')
        return ChildOfClass(dialog, "ListBox", IndexOf(word.target));
    const std::vector<HWND> children = ChildrenOf(dialog);
    return children.empty() ? nullptr : children[IndexOf(word.target) % children.size()];
}

UINT KeyFor(char name)
{
    static constexpr struct
    {
        char name;
        UINT key;
    } keys[] = {{'t', VK_TAB},  {'r', VK_RETURN}, {'e', VK_ESCAPE}, {'s', VK_SPACE}, {'b', VK_BACK}, {'U', VK_UP},
                {'D', VK_DOWN}, {'L', VK_LEFT},   {'R', VK_RIGHT},  {'h', VK_HOME},  {'n', VK_END}};
    const auto* const found = std::ranges::find(keys, name, [](const auto& key) { return key.name; });
    return found != std::end(keys) ? found->key : static_cast<UINT>(static_cast<unsigned char>(name));
}

// Where nobody would see a window, nobody can act on it either.
bool CanBeActedOn(HWND child)
{
    return child != nullptr && IsWindowVisible(child) && IsWindowEnabled(child);
}

void ActOnChild(HWND child, const ActWord& word)
{
    constexpr int left = 5;
    switch (word.act)
    {
    case 'c': word.text.empty() ? Click(child) : ClickAt(child, left, word.Number()); break;
    case 'd': DoubleClickAt(child, left, word.Number()); break;
    case 'f': Focus(child); break;
    case 'b':
    case 'p': Press(child); break;
    case 'l':
    case 's': SelectItem(child, word.Number()); break;
    case 't': ReplaceText(child, word.text); break;
    default: break;
    }
}

// Of a combo box that has the focus, itself or in its field.
bool IsListOpen()
{
    const HWND boxes[] = {GetFocus(), GetParent(GetFocus())};
    return std::ranges::any_of(boxes, [](HWND box) { return SendMessageA(box, CB_GETDROPPEDSTATE, 0, 0) != 0; });
}

// A dialog whose last control was disabled has nobody who could take a key.
bool HasKeyboard(HWND dialog)
{
    const auto takesKeys = [](HWND child)
    { return CanBeActedOn(child) && (GetWindowLongA(child, GWL_STYLE) & WS_TABSTOP) != 0; };
    return GetFocus() != nullptr || std::ranges::any_of(ChildrenOf(dialog), takesKeys);
}

void PressCancel(HWND dialog)
{
    HWND button = GetDlgItem(dialog, IDCANCEL);
    RECT area = {};
    if (CanBeActedOn(button) && GetClientRect(button, &area) && area.right > 0 && area.bottom > 0)
        Press(button);
    else
        PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
}

void ActOnDialog(HWND dialog, const ActWord& word)
{
    switch (word.act)
    {
    case 'k': PressKey(KeyFor(word.target)); break;
    case 'w': TypeText(std::string(1, word.target)); break;
    case 'a': PressMnemonic(word.target); break;
    case 'o': PostMessageA(dialog, WM_COMMAND, IDOK, 0); break;
    case 'x': PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); break;
    case 'X': PressCancel(dialog); break;
    case 'q': PostMessageA(dialog, WM_CLOSE, 0, 0); break;
    default:
        if (HWND child = ChildFor(dialog, word); CanBeActedOn(child))
            ActOnChild(child, word);
    }
}

// Every dialog of the thread, whether it can be acted on or not.
BOOL CALLBACK EndDialogOf(HWND window, LPARAM /*parameter*/)
{
    if (ClassOf(window) == "#32770")
        EndDialog(window, -1);
    return TRUE;
}

std::string FirstActs(const std::string& acts)
{
    std::istringstream words(acts);
    std::string first;
    std::string word;
    for (int count = 0; count < mostActs && words >> word; ++count)
        first += word + ' ';
    return first;
}

} // namespace

ActingUser::ActingUser(const std::string& acts, std::vector<std::string> leaving)
    : m_acts(FirstActs(acts)), m_leaving(std::move(leaving)), m_timer(SetTimer(nullptr, 0, 1, Tick))
{
    current = this;
    BeginAct();
}

ActingUser::~ActingUser()
{
    KillTimer(nullptr, m_timer);
    current = nullptr;
}

void ActingUser::Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    if (current == nullptr)
        return;
    // The platform called this, and nothing may be raised through it.
    try
    {
        if (current->m_despair.empty())
            current->Act();
        else
            current->EndAll();
    }
    catch (const std::exception& error)
    {
        current->m_despair = error.what();
    }
}

// Windows that come again for each that is ended would fill the stack.
void ActingUser::EndAll()
{
    constexpr int mostRounds = 100;
    if (++m_rounds > mostRounds)
    {
        std::fprintf(stderr, "%s; and there is no end to it\n", m_despair.c_str());
        std::abort();
    }
    EnumThreadWindows(GetCurrentThreadId(), EndDialogOf, 0);
}

void ActingUser::Act()
{
    constexpr int mostIdleTicks = 1000; // a window may be about to show
    HWND window = ActiveDialog();
    m_idleTicks = window == nullptr ? m_idleTicks + 1 : 0;
    std::string word;
    if (m_idleTicks > mostIdleTicks)
        throw std::runtime_error("a dialog runs, and none can be acted on");
    if (window == nullptr)
        return;
    if (IsMessageBox(window))
        Answer(window);
    else if (m_acts >> word)
    {
        BeginAct();
        ActOnDialog(window, ActWord(word));
    }
    else
        Leave(window);
}

void ActingUser::Answer(HWND box)
{
    constexpr int mostBoxesAtTheEnd = 2;
    m_messages.push_back(MessageTextOf(box));
    AnswerBox(box, IsWindow(m_closing) ? mostBoxesAtTheEnd : mostBoxesOfAct);
}

void ActingUser::Leave(HWND window)
{
    // Escape closes the list first.
    if (!std::exchange(m_isClosingList, false) && IsListOpen())
    {
        m_isClosingList = true;
        BeginAct();
        PressKey(VK_ESCAPE);
        return;
    }
    const size_t step = m_left[window]++;
    if (step == m_leaving.size())
        throw std::runtime_error("the dialog stays after " + m_leaving.back());
    if (step + 1 == m_leaving.size())
        m_closing = window;
    BeginAct();
    const ActWord word(m_leaving[step]);
    ActOnDialog(window, word.act == 'k' && !HasKeyboard(window) ? ActWord("q") : word);
}

} // namespace robot
