#include "lytdlg/draw/Snapshot.h"

#include "controls/TypeWords.h"
#include "lytdlg/try/TrialDialog.h"
#include "robot/WindowRobot.h"
#include "script/Controls.h"

#include <commctrl.h>

#include <algorithm>
#include <numeric>

namespace lytdlg
{

namespace
{

Area AreaOf(const RECT& rect)
{
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

Area WindowArea(HWND window, POINT origin)
{
    RECT rect{};
    GetWindowRect(window, &rect);
    Area area = AreaOf(rect);
    area.left -= origin.x;
    area.top -= origin.y;
    return area;
}

POINT CornerOf(HWND window)
{
    RECT rect{};
    GetWindowRect(window, &rect);
    return {rect.left, rect.top};
}

// What the frame of a window leaves, within that window.
Area ClientArea(HWND window)
{
    RECT rect{};
    GetClientRect(window, &rect);
    POINT corner{0, 0};
    MapWindowPoints(window, nullptr, &corner, 1);
    const POINT origin = CornerOf(window);
    return {corner.x - origin.x, corner.y - origin.y, rect.right, rect.bottom};
}

bool HasStyle(HWND window, DWORD style)
{
    return (static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) & style) == style;
}

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return SendMessageA(window, message, wParam, lParam);
}

void ReadSelection(HWND edit, SeenControl& control)
{
    const auto selection = static_cast<DWORD>(Ask(edit, EM_GETSEL));
    control.selectedFrom = LOWORD(selection);
    control.selectedTo = HIWORD(selection);
}

void ReadItems(HWND list, SeenControl& control)
{
    for (std::string& text : robot::ItemsOf(list))
        control.items.push_back({std::move(text), false});
    control.chosen = robot::SelectedItemOf(list);
}

void ReadList(HWND list, SeenControl& control)
{
    ReadItems(list, control);
    control.topItem = static_cast<int>(Ask(list, LB_GETTOPINDEX));
    RECT rect{};
    Ask(list, LB_GETITEMRECT, static_cast<WPARAM>(control.topItem), reinterpret_cast<LPARAM>(&rect));
    control.firstItem = AreaOf(rect);
    if (!lytTypeOf(control.type).hasMarks)
        return;
    for (size_t index = 0; index < control.items.size(); ++index)
        control.items[index].isMarked = Ask(list, LB_GETITEMDATA, index) == BST_CHECKED;
}

void ReadCombo(HWND combo, SeenControl& control)
{
    ReadItems(combo, control);
    const HWND edit = FindWindowExA(combo, nullptr, "Edit", nullptr);
    if (edit == nullptr)
        return;
    control.field = WindowArea(edit, CornerOf(combo));
    ReadSelection(edit, control);
}

void ReadWindow(HWND window, HWND dialog, SeenControl& control)
{
    control.hasWindow = true;
    control.text = robot::TextOf(window);
    control.place = WindowArea(window, CornerOf(dialog));
    control.inside = ClientArea(window);
    control.isShown = IsWindowVisible(window) != FALSE;
    control.isEnabled = IsWindowEnabled(window) != FALSE;
    control.hasFocus = GetFocus() == window || IsChild(window, GetFocus()) != FALSE;
    const ClytType& type = lytTypeOf(control.type);
    if (type.isChecked)
        control.isChecked = Ask(window, BM_GETCHECK) == BST_CHECKED;
    else if (type.isButton)
        control.isDefault = (GetWindowLongA(window, GWL_STYLE) & LONG{BS_TYPEMASK}) == BS_DEFPUSHBUTTON;
    else if (type.kind == ClytKind::Field)
        ReadSelection(window, control);
    else if (type.isOpenList)
        ReadList(window, control);
    else if (type.hasItems)
        ReadCombo(window, control);
}

// The system's fonts of this kind have no kerning: a text is as wide as its characters together.
void MeasureFont(HWND dialog, SeenDialog& seen)
{
    const CClientDC device(CWnd::FromHandle(dialog));
    device.SelectObject(reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
    for (size_t code = 0; code < seen.advances.size(); ++code)
    {
        const char character = static_cast<char>(code);
        const CSize extent = device.GetTextExtent(&character, 1);
        seen.advances.at(code) = extent.cx;
        seen.textHeight = extent.cy;
    }
    seen.pixelsPerInch = device.GetDeviceCaps(LOGPIXELSX);
}

SeenDialog SeeFrame(HWND dialog)
{
    SeenDialog seen;
    seen.title = robot::TextOf(dialog);
    const Area window = WindowArea(dialog, {0, 0});
    seen.width = window.width;
    seen.height = window.height;
    seen.client = ClientArea(dialog);
    MeasureFont(dialog, seen);
    return seen;
}

// The word of the layout for what scripts call a control.
std::string LayoutTypeOf(HWND control)
{
    constexpr std::pair<const char*, const char*> types[] = {
        {"edit", "TextBox"},   {"text", "Text"},           {"button", "PushButton"},
        {"check", "CheckBox"}, {"option", "OptionButton"}, {"list", "ListBox"},
        {"combo", "ComboBox"}, {"group", "GroupBox"},      {"tree", "Tree"}};
    const std::string type = script::TypeOf(control);
    const auto known = std::ranges::find(types, type, &std::pair<const char*, const char*>::first);
    return known != std::end(types) ? known->second : type;
}

HTREEITEM NextNode(HWND tree, UINT relation, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(Ask(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

void ReadTree(HWND tree, SeenControl& control)
{
    const HTREEITEM chosen = NextNode(tree, TVGN_CARET, nullptr);
    for (HTREEITEM item = NextNode(tree, TVGN_ROOT, nullptr); item != nullptr;
         item = NextNode(tree, TVGN_NEXTVISIBLE, item))
    {
        TVITEMA node = {};
        node.mask = TVIF_CHILDREN | TVIF_STATE;
        node.stateMask = TVIS_EXPANDED;
        node.hItem = item;
        Ask(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&node));
        const std::string text = robot::LabelOf(tree, item);
        SeenNode seen = {text, text, 0, (node.state & TVIS_EXPANDED) != 0, node.cChildren != 0, item == chosen};
        for (HTREEITEM parent = NextNode(tree, TVGN_PARENT, item); parent != nullptr;
             parent = NextNode(tree, TVGN_PARENT, parent))
        {
            seen.path = robot::LabelOf(tree, parent) + "/" + seen.path;
            ++seen.level;
        }
        control.nodes.push_back(std::move(seen));
    }
}

} // namespace

int SeenDialog::WidthOf(const std::string& shown) const
{
    return std::accumulate(shown.begin(), shown.end(), 0,
                           [&](int sum, char ch) { return sum + advances.at(static_cast<unsigned char>(ch)); });
}

SeenDialog See(const TrialDialog& dialog)
{
    SeenDialog seen = SeeFrame(dialog.m_hWnd);
    int tabNumber = 0;
    for (const ClytControl& control : dialog.GetControlList())
    {
        SeenControl& one = seen.controls.emplace_back();
        one.type = dialog.TypeOf(control);
        one.name = dialog.NameOf(control);
        one.line = dialog.LineOf(control);
        const auto* child = dynamic_cast<const CWnd*>(&control);
        if (child == nullptr || child->m_hWnd == nullptr)
            continue;
        ReadWindow(child->m_hWnd, dialog.m_hWnd, one);
        if (HasStyle(child->m_hWnd, WS_TABSTOP))
            one.tabNumber = ++tabNumber;
    }
    return seen;
}

SeenDialog See(HWND window)
{
    SeenDialog seen = SeeFrame(window);
    int tabNumber = 0;
    for (HWND child : robot::ChildrenOf(window))
    {
        SeenControl& one = seen.controls.emplace_back();
        one.type = LayoutTypeOf(child);
        ReadWindow(child, window, one);
        if (one.type == "Tree")
            ReadTree(child, one);
        if (HasStyle(child, WS_TABSTOP))
            one.tabNumber = ++tabNumber;
    }
    return seen;
}

} // namespace lytdlg
