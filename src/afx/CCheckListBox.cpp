#include <afxwin.h>

#include <algorithm>
#include <uxtheme.h>
#include <vsstyle.h>

namespace
{

// The mark at 96 dots per inch, and the blanks around it and before the text.
constexpr int markSize96 = 13;
constexpr int margin96 = 2;

int Scaled(HDC device, int pixels96)
{
    return MulDiv(pixels96, GetDeviceCaps(device, LOGPIXELSY), 96);
}

int TextHeight(HDC device)
{
    TEXTMETRICA metrics{};
    GetTextMetricsA(device, &metrics);
    return static_cast<int>(metrics.tmHeight);
}

// The square of the mark at the left end of an item, in the middle of its height.
CRect MarkPosition(HDC device, const CRect& item)
{
    const int margin = Scaled(device, margin96);
    const int side = std::min(Scaled(device, markSize96), item.Height());
    const int top = item.top + (item.Height() - side) / 2;
    return {item.left + margin, top, item.left + margin + side, top + side};
}

// Draws a mark as the check boxes of the same dialog look: by their theme, or as the platform does without one.
class MarkPainter
{
public:
    // Opened for the list itself, the theme of buttons would become the theme of the list's frame.
    MarkPainter() : m_theme(OpenThemeData(nullptr, L"BUTTON")) {}
    MarkPainter(const MarkPainter&) = delete;
    MarkPainter& operator=(const MarkPainter&) = delete;
    ~MarkPainter()
    {
        if (m_theme != nullptr)
            CloseThemeData(m_theme);
    }

    void Draw(HDC device, CRect place, bool checked, bool enabled) const
    {
        if (m_theme != nullptr)
        {
            const int state = checked ? (enabled ? CBS_CHECKEDNORMAL : CBS_CHECKEDDISABLED)
                                      : (enabled ? CBS_UNCHECKEDNORMAL : CBS_UNCHECKEDDISABLED);
            DrawThemeBackground(m_theme, device, BP_CHECKBOX, state, &place, nullptr);
            return;
        }
        const int state = DFCS_BUTTONCHECK | (checked ? DFCS_CHECKED : 0) | (enabled ? 0 : DFCS_INACTIVE);
        DrawFrameControl(device, &place, DFC_BUTTON, static_cast<UINT>(state));
    }

private:
    HTHEME m_theme;
};

} // namespace

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_MESSAGE(WM_SETFONT, OnSetFont)
    ON_MESSAGE(WM_SETREDRAW, OnSetRedraw)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_MESSAGE(WM_CHAR, OnChar)
END_MESSAGE_MAP()

void CCheckListBox::SetCheck(int index, int check)
{
    // The platform moves an item's data with the item, so a mark stays with its text. The message goes straight to its
    // procedure, as a long list sends one an item.
    if (DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), check) != LB_ERR && m_bRedraw)
        InvalidateItem(index);
}

int CCheckListBox::GetCheck(int index) const
{
    // An item that is not there has no mark.
    return GetItemData(index) == BST_CHECKED ? BST_CHECKED : BST_UNCHECKED;
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CListBox::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
    *result = TRUE;
    return TRUE;
}

void CCheckListBox::DrawItem(DRAWITEMSTRUCT* draw)
{
    if (draw == nullptr || draw->hDC == nullptr)
        return;
    const CRect item(draw->rcItem.left, draw->rcItem.top, draw->rcItem.right, draw->rcItem.bottom);
    const bool enabled = IsWindowEnabled() != FALSE;
    const bool selected = enabled && (draw->itemState & ODS_SELECTED) != 0;
    const int index = static_cast<int>(draw->itemID);

    FillRect(draw->hDC, &item, GetSysColorBrush(COLOR_WINDOW));
    CRect text = item;
    if (index >= 0 && index < GetCount())
    {
        const CRect mark = MarkPosition(draw->hDC, item);
        MarkPainter().Draw(draw->hDC, mark, GetCheck(index) == BST_CHECKED, enabled);
        text.left = mark.right + Scaled(draw->hDC, margin96);
        DrawText(draw->hDC, index, text, selected, enabled);
    }
    if ((draw->itemState & ODS_FOCUS) != 0)
        DrawFocusRect(draw->hDC, &text);
}

void CCheckListBox::DrawText(HDC device, int index, const CRect& area, bool selected, bool enabled) const
{
    CString item;
    GetText(index, item);
    const COLORREF oldText = SetTextColor(device, GetSysColor(!enabled   ? COLOR_GRAYTEXT
                                                              : selected ? COLOR_HIGHLIGHTTEXT
                                                                         : COLOR_WINDOWTEXT));
    const COLORREF oldBack = SetBkColor(device, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const int height = TextHeight(device);
    ExtTextOutA(device, area.left + Scaled(device, margin96), area.top + (area.Height() - height) / 2,
                ETO_OPAQUE | ETO_CLIPPED, &area, item, static_cast<UINT>(item.GetLength()), nullptr);
    SetBkColor(device, oldBack);
    SetTextColor(device, oldText);
}

LRESULT CCheckListBox::OnSetFont(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    Default();
    // The platform asks for the height of an item before the window has its font.
    const CClientDC device(this);
    device.SelectObject(reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT)));
    const int margin = Scaled(device.m_hDC, margin96);
    SetItemHeight(0, static_cast<UINT>(std::max(TextHeight(device.m_hDC), Scaled(device.m_hDC, markSize96)) + margin));
    return 0;
}

LRESULT CCheckListBox::OnSetRedraw(WPARAM wParam, LPARAM /*lParam*/)
{
    m_bRedraw = wParam != FALSE;
    return Default();
}

void CCheckListBox::OnLButtonDown(UINT flags, CPoint point)
{
    CListBox::OnLButtonDown(flags, point);
    ToggleAt(point);
}

void CCheckListBox::OnLButtonDblClk(UINT flags, CPoint point)
{
    CListBox::OnLButtonDblClk(flags, point);
    // The second of two quick clicks on a mark is a click like the first.
    ToggleAt(point);
}

void CCheckListBox::OnKeyDown(UINT key, UINT count, UINT flags)
{
    if (key == VK_SPACE)
        Toggle(GetCaretIndex());
    else
        CListBox::OnKeyDown(key, count, flags);
}

LRESULT CCheckListBox::OnChar(WPARAM wParam, LPARAM /*lParam*/)
{
    // The space key means the mark; as a character it would search for an item that begins with a blank.
    return wParam != VK_SPACE ? Default() : 0;
}

void CCheckListBox::ToggleAt(CPoint point)
{
    const int index = GetTopIndex() + point.y / std::max(GetItemHeight(0), 1);
    CRect item;
    if (GetItemRect(index, &item) == LB_ERR)
        return;
    const CClientDC device(this);
    const CRect mark = MarkPosition(device.m_hDC, item);
    if (PtInRect(&mark, point))
        Toggle(index);
}

void CCheckListBox::Toggle(int index)
{
    if (index < 0 || index >= GetCount())
        return;
    SetCheck(index, GetCheck(index) == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
    ::SendMessageA(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE),
                   reinterpret_cast<LPARAM>(m_hWnd));
}

void CCheckListBox::InvalidateItem(int index) const
{
    CRect item;
    if (GetItemRect(index, &item) != LB_ERR)
        ::InvalidateRect(m_hWnd, &item, FALSE);
}
