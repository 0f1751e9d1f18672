#include "fuzz/frame/ActingUser.h"

#include "robot/WindowRobot.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>

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
        return robot::ChildOfClass(dialog, "Button", IndexOf(word.target));
    if (word.act == 'l')
        return robot::ChildOfClass(dialog, "ListBox", IndexOf(word.target));
    const std::vector<HWND> children = robot::ChildrenOf(dialog);
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
    case 'c': word.text.empty() ? robot::Click(child) : robot::ClickAt(child, left, word.Number()); break;
    case 'd': robot::DoubleClickAt(child, left, word.Number()); break;
    case 'f': robot::Focus(child); break;
    case 'b':
    case 'p': robot::Press(child); break;
    case 'l':
    case 's': robot::SelectItem(child, word.Number()); break;
    case 't': robot::ReplaceText(child, word.text); break;
    default: break;
    }
}

void ActOnDialog(HWND dialog, const ActWord& word)
{
    switch (word.act)
    {
    case 'k': robot::PressKey(KeyFor(word.target)); break;
    case 'w': robot::TypeText(std::string(1, word.target)); break;
    case 'a': robot::PressMnemonic(word.target); break;
    case 'o': PostMessageA(dialog, WM_COMMAND, IDOK, 0); break;
    case 'x': PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); break;
    default:
        if (HWND child = ChildFor(dialog, word); CanBeActedOn(child))
            ActOnChild(child, word);
    }
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

ActingUser::ActingUser(const std::string& acts) : m_acts(FirstActs(acts)), m_timer(SetTimer(nullptr, 0, 1, Tick))
{
    current = this;
}

ActingUser::~ActingUser()
{
    KillTimer(nullptr, m_timer);
    current = nullptr;
}

void ActingUser::Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    if (current != nullptr)
        current->Act();
}

void ActingUser::Act()
{
    HWND window = robot::ActiveDialog();
    std::string word;
    if (window == nullptr)
        KillTimer(nullptr, m_timer);
    else if (robot::IsMessageBox(window))
        robot::Press(GetDlgItem(window, IDOK));
    else if (m_acts >> word)
        ActOnDialog(window, ActWord(word));
    else
        Finish(window);
}

void ActingUser::Finish(HWND window)
{
    if (m_finished.insert(window).second)
        PostMessageA(window, WM_COMMAND, IDOK, 0);
    else
        KillTimer(nullptr, m_timer);
}
