#include "ComboBoxWindow.h"

#include "Desktop.h"
#include "Metrics.h"

#include <algorithm>
#include <utility>

namespace platform
{

namespace
{

constexpr int editId = 1001;
// The frame and the blanks round the text of the closed box.
constexpr int fieldMargin = 8;
constexpr int editMargin = 6;
constexpr DWORD kindMask = 3;

} // namespace

void ComboBoxWindow::OnCreated()
{
    exStyle &= ~DWORD{WS_EX_CLIENTEDGE};
    style &= ~DWORD{WS_VSCROLL | WS_HSCROLL | WS_BORDER};
    if ((style & kindMask) != CBS_DROPDOWN)
        return;
    auto edit = std::make_unique<ComboEditWindow>();
    edit->className = "Edit";
    edit->style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | (style & WS_DISABLED);
    edit->id = editId;
    m_edit = Desktop::Get().Adopt(std::move(edit), this).handle;
    PlaceField();
}

void ComboBoxWindow::PlaceField() const
{
    Window* field = Desktop::Get().Find(m_edit);
    if (field == nullptr)
        return;
    constexpr LONG margin = editMargin / 2;
    const SIZE size = ClientSize();
    field->place = {margin, margin, std::max(margin, size.cx - CurrentMetrics().scrollBarWidth - margin),
                    size.cy - margin};
}

SIZE ComboBoxWindow::Adjusted(SIZE wanted) const
{
    return {wanted.cx, LineHeight(font) + fieldMargin};
}

LRESULT ComboBoxWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE: return DialogCodes(wParam);
    case WM_SETFONT:
        Window::Handle(message, wParam, lParam);
        place.bottom = place.top + LineHeight(font) + fieldMargin;
        PlaceField();
        ::SendMessageA(m_edit, message, wParam, lParam);
        return 0;
    case WM_SIZE: PlaceField(); return 0;
    // As with a list, switching the drawing off does not hide the box.
    case WM_SETREDRAW: return 0;
    case WM_ENABLE: ::EnableWindow(m_edit, wParam != 0 ? TRUE : FALSE); return 0;
    case WM_SETTEXT:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH: return HandleText(message, wParam, lParam);
    case WM_COMMAND:
        if (!m_isQuiet)
            HandleEdit(HIWORD(wParam));
        return 0;
    case WM_SETFOCUS: TakeFocus(); return 0;
    case WM_KILLFOCUS:
        if (!HasEdit())
            HandleEdit(EN_KILLFOCUS);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: TakeClick(lParam); return 0;
    case WM_LBUTTONUP:
        if (::GetCapture() == handle)
            ::ReleaseCapture();
        return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: TakeKey(message, wParam); return 0;
    case WM_CHAR: TakeCharacter(wParam); return 0;
    default: return HandleItems(message, wParam, lParam);
    }
}

LRESULT ComboBoxWindow::HandleItems(UINT message, WPARAM wParam, LPARAM lParam)
{
    const int index = static_cast<int>(wParam);
    switch (message)
    {
    case CB_ADDSTRING: return m_items.Insert(-1, reinterpret_cast<const char*>(lParam));
    case CB_INSERTSTRING: return m_items.Insert(index, reinterpret_cast<const char*>(lParam));
    case CB_DELETESTRING: return Delete(index);
    case CB_RESETCONTENT:
        m_items.Clear();
        m_caret = 0;
        ShowCurrent();
        return TRUE;
    case CB_GETCOUNT: return m_items.Count();
    case CB_GETCURSEL: return m_items.Current();
    case CB_SETCURSEL:
    {
        const int selected = m_items.Select(index);
        if (selected >= 0)
            m_caret = selected;
        ShowCurrent();
        return selected;
    }
    case CB_GETLBTEXTLEN: return m_items.Has(index) ? static_cast<LRESULT>(m_items.At(index).text.size()) : CB_ERR;
    case CB_GETLBTEXT: return m_items.CopyOut(index, lParam);
    case CB_GETDROPPEDSTATE: return m_isOpen ? TRUE : FALSE;
    case CB_SHOWDROPDOWN:
        if (wParam != 0)
            Open();
        else
            Close(CBN_SELENDCANCEL);
        return TRUE;
    default: return Window::Handle(message, wParam, lParam);
    }
}

// Without an edit field the text is that of the current item, and no one else sets it.
LRESULT ComboBoxWindow::HandleText(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!HasEdit())
        return message == WM_SETTEXT ? LRESULT{CB_ERR} : Window::Handle(message, wParam, lParam);
    const bool wasQuiet = std::exchange(m_isQuiet, true);
    const LRESULT result = ::SendMessageA(m_edit, message, wParam, lParam);
    m_isQuiet = wasQuiet;
    return result;
}

void ComboBoxWindow::HandleEdit(UINT code)
{
    switch (code)
    {
    case EN_SETFOCUS: Notify(CBN_SETFOCUS); return;
    case EN_KILLFOCUS:
        if (m_isOpen)
            Close(CBN_SELENDCANCEL);
        else
            Notify(CBN_SELENDCANCEL);
        Notify(CBN_KILLFOCUS);
        return;
    case EN_UPDATE: Notify(CBN_EDITUPDATE); return;
    case EN_CHANGE:
        if (!std::exchange(m_keepsCurrent, false))
            m_items.Select(-1);
        MoveCaretToText();
        Notify(CBN_EDITCHANGE);
        return;
    default: return;
    }
}

void ComboBoxWindow::ShowCurrent()
{
    ShowText(m_items.Current() >= 0 ? m_items.At(m_items.Current()).text : std::string());
    if (HasEdit() && ::GetFocus() == m_edit)
        ::SendMessageA(m_edit, EM_SETSEL, 0, -1);
}

void ComboBoxWindow::ShowText(const std::string& shown)
{
    m_keepsCurrent = false;
    if (HasEdit())
        HandleText(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(shown.c_str()));
    else
        text = shown;
}

// The edit field keeps the text of an item that is deleted.
LRESULT ComboBoxWindow::Delete(int index)
{
    const bool wasCurrent = index == m_items.Current();
    const int left = m_items.Delete(index);
    m_caret = std::max(0, std::min(m_caret, left - 1));
    if (left >= 0 && wasCurrent && !HasEdit())
        ShowCurrent();
    return left;
}

} // namespace platform
