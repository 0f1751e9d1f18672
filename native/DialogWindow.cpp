#include "DialogWindow.h"

#include "Desktop.h"
#include "FaultPlan.h"

#include <algorithm>
#include <utility>

namespace platform
{

namespace
{

void SelectAndFocus(HWND child)
{
    if (HasCode(child, DLGC_HASSETSEL))
        ::SendMessageA(child, EM_SETSEL, 0, -1);
    ::SetFocus(child);
}

} // namespace

bool HasCode(HWND window, UINT codes, WPARAM key)
{
    return (SendMessageA(window, WM_GETDLGCODE, key, 0) & codes) != 0;
}

// A frame that can be sized keeps room for the buttons of the caption.
SIZE DialogWindow::Adjusted(SIZE wanted) const
{
    if (!HasStyle(WS_THICKFRAME))
        return wanted;
    return {std::max(wanted.cx, GetSystemMetrics(SM_CXMINTRACK)), std::max(wanted.cy, GetSystemMetrics(SM_CYMINTRACK))};
}

LRESULT DialogWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    return IsHandledByProgram(message, wParam, lParam) ? TRUE : HandleDefault(message, wParam, lParam);
}

bool DialogWindow::IsHandledByProgram(UINT message, WPARAM wParam, LPARAM lParam) const
{
    const ProgramAtWork working;
    return dialogProcedure != nullptr && dialogProcedure(handle, message, wParam, lParam) != FALSE;
}

LRESULT DialogWindow::HandleDefault(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case DM_GETDEFID: return hasEnded ? 0 : static_cast<LRESULT>(MAKEWPARAM(defaultId, DC_HASDEFID));
    case DM_SETDEFID: defaultId = static_cast<int>(wParam); return TRUE;
    case WM_NEXTDLGCTL: MoveToControl(wParam, lParam); return 0;
    case WM_SETFOCUS:
        if (!hasEnded && !RestoreSavedFocus())
            FocusFirst();
        return 0;
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE)
            RestoreSavedFocus();
        else if (FocusedChild() != nullptr)
            m_savedFocus = ::GetFocus();
        return 0;
    case WM_CLOSE:
        ::PostMessageA(handle, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(handle, IDCANCEL)));
        return 0;
    default: return Window::Handle(message, wParam, lParam);
    }
}

Window* DialogWindow::NextTabStop(const Window* from, bool backwards) const
{
    if (children.empty())
        return nullptr;
    const bool isChild = from != nullptr && from->parent == this;
    Window* const last = isChild ? *from->inRow : backwards ? children.front() : children.back();
    Window* child = last;
    do
    {
        child = &Neighbour(*child, backwards);
        if (child->HasStyle(WS_TABSTOP) && child->IsReady())
            return child;
    } while (child != last);
    return nullptr;
}

Window& DialogWindow::Neighbour(const Window& child, bool backwards) const
{
    auto at = WindowRow::const_iterator(child.inRow);
    if (backwards)
        return **std::prev(at == children.begin() ? children.end() : at);
    ++at;
    return at != children.end() ? **at : *children.front();
}

Window* DialogWindow::NextInGroup(Window& from, bool backwards) const
{
    if (from.parent != this)
        return nullptr;
    std::vector<Window*> others = from.OthersOfGroup();
    if (backwards)
        std::ranges::reverse(others);
    const auto next = std::ranges::find_if(others, &Window::IsReady);
    return next != others.end() ? *next : &from;
}

void DialogWindow::MoveToControl(WPARAM wParam, LPARAM lParam)
{
    if (lParam != 0)
    {
        FocusChild(reinterpret_cast<HWND>(wParam));
        return;
    }
    if (const Window* next = NextTabStop(FocusedChild(), wParam != 0))
        FocusChild(next->handle);
}

void DialogWindow::FocusChild(HWND child)
{
    SelectAndFocus(child);
    MoveDefaultTo(child);
}

// The default style goes with the focus from push button to push button, and back to the dialog's own where the focus is
// on anything else.
void DialogWindow::MoveDefaultTo(HWND focused) const
{
    const HWND current = DefaultButton();
    HWND wanted = ::GetDlgItem(handle, defaultId);
    if (HasCode(focused, DLGC_UNDEFPUSHBUTTON) || HasCode(focused, DLGC_DEFPUSHBUTTON))
        wanted = focused;
    if (current == wanted)
        return;
    if (current != nullptr)
        ::SendMessageA(current, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    if (wanted != nullptr && HasCode(wanted, DLGC_UNDEFPUSHBUTTON))
        ::SendMessageA(wanted, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

HWND DialogWindow::DefaultButton() const
{
    const auto found =
        std::ranges::find_if(m_defaultButtons, [](HWND button) { return HasCode(button, DLGC_DEFPUSHBUTTON); });
    return found != m_defaultButtons.end() ? *found : nullptr;
}

void DialogWindow::NoteButton(HWND button, bool isDefault)
{
    if (isDefault)
        m_defaultButtons.insert(button);
    else
        m_defaultButtons.erase(button);
}

Window* DialogWindow::FocusedChild() const
{
    Window* window = Desktop::Get().Find(::GetFocus());
    while (window != nullptr && window->parent != this)
        window = window->parent;
    return window;
}

bool DialogWindow::RestoreSavedFocus()
{
    if (hasEnded || !::IsWindow(m_savedFocus))
        return false;
    ::SetFocus(std::exchange(m_savedFocus, nullptr));
    return true;
}

void DialogWindow::FocusFirst()
{
    if (children.empty())
        return;
    const Window* first = NextTabStop(nullptr);
    if (first == nullptr)
        first = children.front()->IsReady() ? children.front() : NextInGroup(*children.front(), false);
    SelectAndFocus(first->handle);
}

} // namespace platform

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous)
{
    const platform::Desktop& desktop = platform::Desktop::Get();
    const auto* window = desktop.FindAs<platform::DialogWindow>(dialog);
    if (window == nullptr)
        return nullptr;
    const platform::Window* next = window->NextTabStop(desktop.Find(control), previous != FALSE);
    return next != nullptr ? next->handle : nullptr;
}
