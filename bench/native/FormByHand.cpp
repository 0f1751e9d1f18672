#include "native/FormByHand.h"

#include "environment/ClytEnvironment.h"
#include "frame/Discard.h"
#include "robot/WindowRobot.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>

namespace
{

constexpr UINT noMessage = 0;

struct ListMessages
{
    const char* windowClass;
    UINT add;
    UINT count;
    UINT text;
};
constexpr ListMessages listMessages[] = {{"ListBox", LB_ADDSTRING, LB_GETCOUNT, LB_GETTEXT},
                                         {"ComboBox", CB_ADDSTRING, CB_GETCOUNT, CB_GETLBTEXT},
                                         {"", noMessage, noMessage, noMessage}};

const ListMessages& MessagesFor(const std::string& windowClass)
{
    return *std::ranges::find_if(listMessages, [&](const ListMessages& one)
                                 { return *one.windowClass == '\0' || windowClass == one.windowClass; });
}

std::string ContentOf(const std::string& name)
{
    std::ifstream file(name);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string ReadText(const char* section, const char* key)
{
    std::array<char, 75> text{};
    GetPrivateProfileStringA(section, key, "", text.data(), text.size(), lytEnvironment.GetLanguageFileName());
    return text.data();
}

void ReadHeldTexts(HWND window, const ListMessages& messages)
{
    std::array<char, 400> text{};
    GetWindowTextA(window, text.data(), text.size());
    Discard(text.data());
    const LRESULT count = messages.count == noMessage ? 0 : SendMessageA(window, messages.count, 0, 0);
    for (LRESULT index = 0; index < count; ++index)
    {
        SendMessageA(window, messages.text, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
        Discard(text.data());
    }
}

} // namespace

FormByHand::FormByHand(const LiveForm& form, const char* description, Entries entries) : m_description(description)
{
    const std::string content = ContentOf(m_description);
    std::smatch found;
    std::regex_search(content, found, std::regex("\\$LAYOUT (\\w+)"));
    m_section = found[1];
    // The labels of the layout and the named items of lists; anything else in quotes or after a colon is not a key.
    const std::regex keys("\"(\\w+)\"|: (\\w+) =");
    for (std::sregex_iterator key(content.begin(), content.end(), keys), end; key != end; ++key)
    {
        const std::string name = (*key)[1].matched ? (*key)[1] : (*key)[2];
        if (!ReadText(m_section.c_str(), name.c_str()).empty())
            m_textKeys.push_back(name);
    }

    const std::vector<HWND> children = robot::ChildrenOf(form.m_hWnd);
    for (HWND child : children)
    {
        const std::string windowClass = robot::ClassOf(child);
        m_children.push_back(
            {windowClass, robot::TextOf(child), static_cast<DWORD>(GetWindowLongA(child, GWL_STYLE)),
             static_cast<DWORD>(GetWindowLongA(child, GWL_EXSTYLE)), robot::PlaceOf(child),
             MessagesFor(windowClass).add == noMessage ? std::vector<std::string>() : robot::ItemsOf(child)});
    }
    for (const auto& [control, text] : entries)
        m_typed.emplace_back(std::ranges::find(children, form.Window(control)->m_hWnd) - children.begin(), text);
}

void FormByHand::Work() const
{
    ReadFiles();
    HWND dialog = CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    const std::vector<HWND> windows = MakeWindows(dialog);
    for (const auto& [child, text] : m_typed)
        robot::ReplaceText(windows[child], text);
    for (size_t index = 0; index < windows.size(); ++index)
        ReadHeldTexts(windows[index], MessagesFor(m_children[index].windowClass));
    DestroyWindow(dialog);
}

void FormByHand::ReadFiles() const
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(m_description.c_str(), "r"), std::fclose);
    std::array<char, 400> line{};
    while (std::fgets(line.data(), line.size(), file.get()) != nullptr)
        Discard(line.data());
    for (const std::string& key : m_textKeys)
        Discard(ReadText(m_section.c_str(), key.c_str()).data());
}

std::vector<HWND> FormByHand::MakeWindows(HWND dialog) const
{
    const auto font = static_cast<WPARAM>(SendMessageA(dialog, WM_GETFONT, 0, 0));
    std::vector<HWND> windows;
    for (const Child& child : m_children)
    {
        const RECT& place = child.place;
        HWND window =
            CreateWindowExA(child.extendedStyle, child.windowClass.c_str(), "", child.style, place.left, place.top,
                            place.right - place.left, place.bottom - place.top, dialog, nullptr, nullptr, nullptr);
        SendMessageA(window, WM_SETFONT, font, TRUE);
        SetWindowTextA(window, child.text.c_str());
        for (const std::string& item : child.items)
            SendMessageA(window, MessagesFor(child.windowClass).add, 0, reinterpret_cast<LPARAM>(item.c_str()));
        windows.push_back(window);
    }
    return windows;
}
