// What a combo box does with the mouse, the keys and the focus, and how its list opens and closes.
#include "ComboBoxWindow.h"
#include "Desktop.h"
#include "Metrics.h"

#include <algorithm>

namespace platform
{

ComboBoxWindow& ComboEditWindow::Combo() const
{
    return static_cast<ComboBoxWindow&>(*parent);
}

LRESULT ComboEditWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return EditWindow::Handle(message, wParam, lParam) | Combo().DialogCodes(wParam);
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        if (wParam == VK_RETURN || wParam == VK_ESCAPE)
            return ::SendMessageA(parent->handle, message, wParam, lParam);
        if (Combo().TakeKey(message, wParam))
            return 0;
        break;
    case WM_CHAR:
        // The key that closed the list is not text.
        if (wParam == VK_RETURN || wParam == VK_ESCAPE)
            return 0;
        break;
    default: break;
    }
    return EditWindow::Handle(message, wParam, lParam);
}

void ComboBoxWindow::TakeFocus()
{
    if (!HasEdit())
    {
        Notify(CBN_SETFOCUS);
        return;
    }
    ::SetFocus(m_edit);
    ::SendMessageA(m_edit, EM_SETSEL, 0, -1);
}

// Without an edit field the whole box opens the list, with one the arrow does.
void ComboBoxWindow::TakeClick(LPARAM point)
{
    if (::GetFocus() != (HasEdit() ? m_edit : handle))
        ::SetFocus(handle);
    const bool isArrow = static_cast<short>(LOWORD(point)) >= ClientSize().cx - CurrentMetrics().scrollBarWidth;
    if (HasEdit() && !isArrow)
        return;
    if (m_isOpen)
    {
        Close(CBN_SELENDOK);
        return;
    }
    ::SetCapture(handle);
    Open();
}

LRESULT ComboBoxWindow::DialogCodes(WPARAM key) const
{
    const LRESULT codes = DLGC_WANTARROWS | DLGC_WANTCHARS;
    return m_isOpen && (key == VK_RETURN || key == VK_ESCAPE) ? codes | LRESULT{DLGC_WANTALLKEYS} : codes;
}

bool ComboBoxWindow::TakeKey(UINT message, WPARAM key)
{
    const bool withAlt = message == WM_SYSKEYDOWN;
    if (key == VK_F4 || (withAlt && (key == VK_DOWN || key == VK_UP)))
    {
        if (m_isOpen)
            Close(CBN_SELENDCANCEL);
        else
            Open();
        return true;
    }
    if (m_isOpen && (key == VK_RETURN || key == VK_ESCAPE))
    {
        Close(key == VK_RETURN ? CBN_SELENDOK : CBN_SELENDCANCEL);
        return true;
    }
    const int target = Place(key);
    if (withAlt || target < 0)
        return false;
    Choose(target);
    return true;
}

// The item that a key moves to, -1 for a key that does not move.
int ComboBoxWindow::Place(WPARAM key) const
{
    const int last = m_items.Count() - 1;
    const int current = m_items.Current();
    // In a field these two move the caret.
    if (HasEdit() && (key == VK_LEFT || key == VK_RIGHT))
        return -1;
    switch (key)
    {
    case VK_UP:
    case VK_LEFT: return std::min(last, current == m_caret ? std::max(0, m_caret - 1) : m_caret);
    case VK_DOWN:
    case VK_RIGHT: return std::min(last, current == m_caret ? m_caret + 1 : m_caret);
    case VK_HOME: return HasEdit() ? -1 : std::min(last, 0);
    case VK_END: return HasEdit() ? -1 : last;
    default: return -1;
    }
}

void ComboBoxWindow::TakeCharacter(WPARAM character)
{
    const char letter = static_cast<char>(character);
    if (static_cast<unsigned char>(letter) <= VK_SPACE)
        return;
    const int found = m_items.FindPrefix(std::string(1, letter), m_items.Current() + 1);
    if (found >= 0)
        Choose(found);
}

// With a closed list the user chooses immediately; with an open one the choice is made when it closes. The edit field follows
// the notification.
void ComboBoxWindow::Choose(int index)
{
    m_items.Select(index);
    m_caret = index;
    if (!HasEdit())
        ShowCurrent();
    if (!m_isOpen)
        Notify(CBN_SELENDOK);
    Notify(CBN_SELCHANGE);
    ShowCurrent();
    if (HasEdit())
        ::SendMessageA(m_edit, EM_SETSEL, 0, -1);
    m_keepsCurrent = HasEdit();
}

// The keys continue from the first item that begins with the text, or else from the top.
void ComboBoxWindow::MoveCaretToText()
{
    const std::string& typed = Desktop::Get().Find(m_edit)->text;
    m_caret = typed.empty() ? 0 : std::max(0, m_items.FindPrefix(typed, 0));
}

// A list that opens under free text selects the first item that begins with it, and completes the text.
void ComboBoxWindow::Open()
{
    if (m_isOpen)
        return;
    m_isOpen = true;
    Notify(CBN_DROPDOWN);
    if (!HasEdit())
        return;
    const std::string typed = Desktop::Get().Find(m_edit)->text;
    m_items.Select(typed.empty() ? -1 : m_items.FindPrefix(typed, 0));
    MoveCaretToText();
    if (m_items.Current() >= 0)
        ShowCurrent();
    ::SendMessageA(m_edit, EM_SETSEL, 0, -1);
}

void ComboBoxWindow::Close(UINT why)
{
    if (!m_isOpen)
        return;
    Notify(why);
    m_isOpen = false;
    Notify(CBN_CLOSEUP);
}

} // namespace platform
