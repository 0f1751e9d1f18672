#include "script/Controls.h"

#include "commandline/Text.h"

#include "robot/WindowRobot.h"

#include <algorithm>
#include <functional>

namespace script
{

using commandline::Quoted;
using commandline::ToAnsi;
using commandline::ToUtf8;

namespace
{

std::string ButtonType(HWND control)
{
    switch (GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK)
    {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX: return "check";
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON: return "option";
    case BS_GROUPBOX: return "group";
    default: return "button";
    }
}

// A caption without the mark of its access key.
std::string PlainCaption(HWND control)
{
    std::string text = robot::TextOf(control);
    std::erase(text, '&');
    return text;
}

bool IsOneOf(const std::string& type, std::initializer_list<const char*> types)
{
    return std::ranges::find(types, type) != types.end();
}

// The button, mark or option with that caption; else the field after the label with it. What is shown goes before what
// is hidden.
HWND FindByCaption(HWND dialog, const std::string& caption)
{
    const std::vector<HWND> children = robot::ChildrenOf(dialog);
    for (const bool visible : {true, false})
    {
        for (auto child = children.begin(); child != children.end(); ++child)
        {
            if ((IsWindowVisible(*child) != FALSE) != visible || PlainCaption(*child) != caption)
                continue;
            const std::string type = TypeOf(*child);
            if (IsOneOf(type, {"button", "check", "option"}))
                return *child;
            if (!IsOneOf(type, {"text", "group"}))
                continue;
            const auto field = std::find_if(child + 1, children.end(),
                                            [](HWND next) {
                                                return !IsOneOf(TypeOf(next), {"text", "group"});
                                            });
            if (field != children.end())
                return *field;
        }
    }
    return nullptr;
}

HWND FindByType(HWND dialog, const std::string& type, size_t number)
{
    if (type == "ok" || type == "cancel")
        return GetDlgItem(dialog, type == "ok" ? IDOK : IDCANCEL);
    for (HWND child : robot::ChildrenOf(dialog))
    {
        if (TypeOf(child) == type && --number == 0)
            return child;
    }
    return nullptr;
}

HWND FocusedControl(HWND dialog)
{
    HWND control = GetFocus();
    while (control != nullptr && GetParent(control) != dialog)
        control = GetParent(control);
    return control;
}

bool IsChecked(HWND control)
{
    return SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

bool IsCheckList(HWND control)
{
    return TypeOf(control) == "list" && (GetWindowLongA(control, GWL_STYLE) & LBS_OWNERDRAWFIXED) != 0;
}

// ---- Trees

HTREEITEM Next(HWND tree, UINT relation, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::string TreeItemPath(HWND tree, HTREEITEM item)
{
    std::string path;
    for (; item != nullptr; item = Next(tree, TVGN_PARENT, item))
        path = robot::LabelOf(tree, item) + (path.empty() ? "" : "/" + path);
    return path;
}

std::vector<std::string> VisibleTreeItems(HWND tree)
{
    std::vector<std::string> items;
    HTREEITEM item = Next(tree, TVGN_ROOT, nullptr);
    for (; item != nullptr; item = Next(tree, TVGN_NEXTVISIBLE, item))
    {
        std::string indent;
        for (HTREEITEM parent = Next(tree, TVGN_PARENT, item); parent != nullptr;
             parent = Next(tree, TVGN_PARENT, parent))
            indent += "  ";
        items.push_back(indent + robot::LabelOf(tree, item));
    }
    return items;
}

bool TreeItemPlace(HWND tree, HTREEITEM item, RECT& place)
{
    SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    // The message takes the item's handle out of the rectangle that it fills.
    *reinterpret_cast<HTREEITEM*>(&place) = item;
    return SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place)) != 0;
}

} // namespace

std::string TypeOf(HWND control)
{
    static const struct
    {
        const char* windowClass;
        const char* type;
    } types[] = {
        {"Edit", "edit"}, {"Static", "text"}, {"ListBox", "list"}, {"ComboBox", "combo"}, {"SysTreeView32", "tree"}};

    const std::string windowClass = robot::ClassOf(control);
    if (lstrcmpiA(windowClass.c_str(), "Button") == 0)
        return ButtonType(control);
    for (const auto& known : types)
    {
        if (lstrcmpiA(windowClass.c_str(), known.windowClass) == 0)
            return known.type;
    }
    return windowClass;
}

HTREEITEM FindTreeItem(HWND tree, const std::string& path)
{
    // A label may hold a slash itself, so each label is compared with the beginning of what is left.
    HTREEITEM item = Next(tree, TVGN_ROOT, nullptr);
    std::string rest = path;
    while (item != nullptr)
    {
        const std::string label = robot::LabelOf(tree, item);
        if (rest == label)
            return item;
        if (rest.starts_with(label + "/") && Next(tree, TVGN_CHILD, item) != nullptr)
        {
            rest.erase(0, label.size() + 1);
            item = Next(tree, TVGN_CHILD, item);
        }
        else
            item = Next(tree, TVGN_NEXT, item);
    }
    return nullptr;
}

HWND FindControl(HWND dialog, const Target& target)
{
    switch (target.kind)
    {
    case TargetKind::Caption: return FindByCaption(dialog, ToAnsi(target.name));
    case TargetKind::Number: return robot::ChildAt(dialog, target.number - 1);
    case TargetKind::Type: return FindByType(dialog, target.name, target.number);
    case TargetKind::Focus: return FocusedControl(dialog);
    case TargetKind::Name: break;
    }
    return nullptr;
}

std::string NameOf(const Target& target)
{
    return target.kind == TargetKind::Caption ? Quoted(target.name) : target.Written();
}

std::string ReadControl(HWND control)
{
    const std::string type = TypeOf(control);
    if (type == "check" || type == "option")
        return IsChecked(control) ? "checked" : "unchecked";
    if (type == "tree")
    {
        const LRESULT item = SendMessageA(control, TVM_GETNEXTITEM, TVGN_CARET, 0);
        return TreeItemPath(control, reinterpret_cast<HTREEITEM>(item));
    }
    if (type == "list")
    {
        const std::vector<std::string> items = robot::ItemsOf(control);
        const int selected = robot::SelectedItemOf(control);
        return selected >= 0 ? items[static_cast<size_t>(selected)] : "";
    }
    return robot::TextOf(control);
}

std::vector<std::string> ReadItems(HWND control)
{
    if (TypeOf(control) == "tree")
        return VisibleTreeItems(control);
    std::vector<std::string> items = robot::ItemsOf(control);
    for (size_t index = 0; IsCheckList(control) && index < items.size(); ++index)
        items[index].insert(0, IsItemChecked(control, static_cast<int>(index)) ? "[x] " : "[ ] ");
    return items;
}

bool HasState(HWND control, const std::string& state)
{
    static const struct
    {
        const char* word;
        std::function<bool(HWND)> holds;
    } states[] = {
        {"enabled", [](HWND window) { return IsWindowEnabled(window) != FALSE; }},
        {"disabled", [](HWND window) { return IsWindowEnabled(window) == FALSE; }},
        {"visible", [](HWND window) { return IsWindowVisible(window) != FALSE; }},
        {"shown", [](HWND window) { return IsWindowVisible(window) != FALSE; }},
        {"hidden", [](HWND window) { return IsWindowVisible(window) == FALSE; }},
        {"checked", IsChecked},
        {"unchecked", [](HWND window) { return !IsChecked(window); }},
        {"focused", [](HWND window) { return GetFocus() == window || GetParent(GetFocus()) == window; }},
    };
    const auto found = std::ranges::find_if(states, [&](const auto& known) { return state == known.word; });
    return found != std::end(states) && found->holds(control);
}

std::vector<std::string> DescribeControls(HWND dialog)
{
    std::vector<std::string> lines;
    size_t number = 0;
    for (HWND child : robot::ChildrenOf(dialog))
    {
        std::string line =
            "#" + std::to_string(++number) + " " + TypeOf(child) + " " + Quoted(ToUtf8(PlainCaption(child)));
        if (IsOneOf(TypeOf(child), {"check", "option", "list", "combo", "tree"}))
            line += " " + Quoted(ToUtf8(ReadControl(child)));
        if (!HasState(child, "visible"))
            line += " hidden";
        if (!HasState(child, "enabled"))
            line += " disabled";
        if (HasState(child, "focused"))
            line += " focused";
        lines.push_back(line);
    }
    return lines;
}

int ItemIndex(HWND list, const std::string& item)
{
    const std::vector<std::string> items = robot::ItemsOf(list);
    const auto found = std::ranges::find(items, ToAnsi(item));
    return found != items.end() ? static_cast<int>(found - items.begin()) : -1;
}

bool IsItemChecked(HWND list, int index)
{
    return SendMessageA(list, LB_GETITEMDATA, static_cast<WPARAM>(index), 0) == BST_CHECKED;
}

bool ItemPlace(HWND control, const std::string& item, RECT& place)
{
    if (TypeOf(control) == "tree")
    {
        HTREEITEM found = FindTreeItem(control, ToAnsi(item));
        return found != nullptr && TreeItemPlace(control, found, place);
    }
    const int index = ItemIndex(control, item);
    if (index < 0)
        return false;
    if (SendMessageA(control, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place)) == LB_ERR)
        return false;
    RECT client = {};
    GetClientRect(control, &client);
    if (place.top < 0 || place.bottom > client.bottom)
    {
        SendMessageA(control, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
        SendMessageA(control, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
    }
    return true;
}

} // namespace script
