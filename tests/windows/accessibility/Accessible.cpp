#include "Accessible.h"

#include "commandline/Text.h"
#include "robot/WindowRobot.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include <oleacc.h>

namespace
{

struct ObjectReleaser
{
    void operator()(IAccessible* object) const { object->Release(); }
};

struct TextReleaser
{
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};

std::string Utf8(const wchar_t* text)
{
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
    utf8.resize(utf8.size() - 1);
    return utf8;
}

// The object of a window's client area.
class ClientObject
{
public:
    explicit ClientObject(HWND window)
    {
        void* object = nullptr;
        if (AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object) ==
            S_OK)
            m_object.reset(static_cast<IAccessible*>(object));
    }

    bool IsThere() const { return m_object != nullptr; }
    std::string Name() const { return Text(&IAccessible::get_accName); }
    std::string Value() const { return Text(&IAccessible::get_accValue); }
    std::string Shortcut() const { return Text(&IAccessible::get_accKeyboardShortcut); }
    long Role() const { return Number(&IAccessible::get_accRole); }
    long State() const { return Number(&IAccessible::get_accState); }

private:
    static VARIANT Self()
    {
        VARIANT self{};
        self.vt = VT_I4;
        self.lVal = CHILDID_SELF;
        return self;
    }
    std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) const
    {
        BSTR text = nullptr;
        const HRESULT result = (m_object.get()->*get)(Self(), &text);
        const std::unique_ptr<OLECHAR, TextReleaser> owner(text);
        return result == S_OK && text != nullptr ? Utf8(text) : "";
    }
    long Number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, VARIANT*)) const
    {
        VARIANT number{};
        return (m_object.get()->*get)(Self(), &number) == S_OK && number.vt == VT_I4 ? number.lVal : 0;
    }

    std::unique_ptr<IAccessible, ObjectReleaser> m_object;
};

constexpr struct
{
    long role;
    const char* name;
} roles[] = {{ROLE_SYSTEM_CHECKBUTTON, "check box"},
             {ROLE_SYSTEM_COMBOBOX, "combo box"},
             {ROLE_SYSTEM_DIALOG, "dialog"},
             {ROLE_SYSTEM_GROUPING, "grouping"},
             {ROLE_SYSTEM_LIST, "list"},
             {ROLE_SYSTEM_OUTLINE, "outline"},
             {ROLE_SYSTEM_PUSHBUTTON, "push button"},
             {ROLE_SYSTEM_RADIOBUTTON, "radio button"},
             {ROLE_SYSTEM_STATICTEXT, "text"},
             {ROLE_SYSTEM_TEXT, "editable text"}};

// Those that tell more than that a window can take the focus, and than where it is.
constexpr struct
{
    long state;
    const char* name;
} states[] = {{STATE_SYSTEM_UNAVAILABLE, "unavailable"},
              {STATE_SYSTEM_FOCUSED, "focused"},
              {STATE_SYSTEM_CHECKED, "checked"},
              {STATE_SYSTEM_READONLY, "read-only"},
              {STATE_SYSTEM_DEFAULT, "default"}};

std::vector<std::string> NamesOf(long state)
{
    std::vector<std::string> names;
    for (const auto& known : states)
    {
        if ((state & known.state) != 0)
            names.emplace_back(known.name);
    }
    return names;
}

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
}

long RoleOfButton(HWND button)
{
    switch (StyleOf(button) & BS_TYPEMASK)
    {
    case BS_GROUPBOX: return ROLE_SYSTEM_GROUPING;
    case BS_AUTOCHECKBOX: return ROLE_SYSTEM_CHECKBUTTON;
    case BS_AUTORADIOBUTTON: return ROLE_SYSTEM_RADIOBUTTON;
    default: return ROLE_SYSTEM_PUSHBUTTON;
    }
}

long RoleByClass(HWND window)
{
    const std::string windowClass = robot::ClassOf(window);
    if (windowClass == "Button")
        return RoleOfButton(window);
    static const struct
    {
        const char* windowClass;
        long role;
    } known[] = {{"#32770", ROLE_SYSTEM_DIALOG},
                 {"ComboBox", ROLE_SYSTEM_COMBOBOX},
                 {"ListBox", ROLE_SYSTEM_LIST},
                 {"Static", ROLE_SYSTEM_STATICTEXT},
                 {"SysTreeView32", ROLE_SYSTEM_OUTLINE}};
    const auto found =
        std::ranges::find(known, windowClass, [](const auto& row) { return std::string(row.windowClass); });
    return found != std::end(known) ? found->role : ROLE_SYSTEM_CLIENT;
}

long StateByStyle(HWND window, long role)
{
    const bool isMark = role == ROLE_SYSTEM_CHECKBUTTON || role == ROLE_SYSTEM_RADIOBUTTON;
    if (isMark && SendMessageA(window, BM_GETCHECK, 0, 0) == BST_CHECKED)
        return STATE_SYSTEM_CHECKED;
    const bool isDefault = role == ROLE_SYSTEM_PUSHBUTTON && (StyleOf(window) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    return isDefault ? STATE_SYSTEM_DEFAULT : 0;
}

// The text before a field names it, and has its key.
void TakeLabel(HWND field, Accessible& accessible)
{
    accessible.name.clear();
    accessible.shortcut.clear();
    HWND label = GetWindow(field, GW_HWNDPREV);
    if (label == nullptr || RoleByClass(label) != ROLE_SYSTEM_STATICTEXT)
        return;
    const ClientObject text(label);
    accessible.name = text.Name();
    accessible.shortcut = text.Shortcut();
}

std::vector<std::string> ItemsOf(HWND list)
{
    std::vector<std::string> items;
    std::ranges::transform(robot::ItemsOf(list), std::back_inserter(items), commandline::ToUtf8);
    const int chosen = robot::SelectedItemOf(list);
    for (int index = 0; index < std::ssize(items); ++index)
    {
        std::string& item = items[static_cast<size_t>(index)];
        item = commandline::Quoted(item) + (index == chosen ? ", selected" : "");
    }
    return items;
}

void Complete(HWND window, Accessible& accessible)
{
    accessible.role = RoleByClass(window);
    for (std::string& state : NamesOf(StateByStyle(window, accessible.role)))
        accessible.states.push_back(std::move(state));
    const bool isList = accessible.role == ROLE_SYSTEM_LIST;
    if (isList || accessible.role == ROLE_SYSTEM_COMBOBOX || accessible.role == ROLE_SYSTEM_OUTLINE)
        TakeLabel(window, accessible);
    if (accessible.role == ROLE_SYSTEM_COMBOBOX)
        accessible.value = commandline::ToUtf8(robot::TextOf(window));
    if (isList)
        accessible.items = ItemsOf(window);
}

} // namespace

Accessible Describe(HWND window)
{
    Accessible accessible;
    const ClientObject object(window);
    if (!object.IsThere())
        return accessible;
    accessible = {object.Role(), object.Name(), object.Value(), object.Shortcut(), NamesOf(object.State()), {}, true};
    if (accessible.role != ROLE_SYSTEM_CLIENT)
        return accessible;
    accessible.isTold = false;
    Complete(window, accessible);
    return accessible;
}

std::string TextOf(const Accessible& accessible)
{
    const auto role = std::ranges::find(roles, accessible.role, [](const auto& row) { return row.role; });
    std::string text = role != std::end(roles) ? role->name : "role " + std::to_string(accessible.role);
    text += " " + commandline::Quoted(accessible.name);
    if (!accessible.value.empty())
        text += " = " + commandline::Quoted(accessible.value);
    if (!accessible.shortcut.empty())
        text += ", " + accessible.shortcut;
    for (const std::string& state : accessible.states)
        text += ", " + state;
    for (const std::string& item : accessible.items)
        text += "\n    item " + item;
    return text;
}
