#include "controls/ClytCheckListBox.h"

#include "base/ClytRedrawPause.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"

#include <utility>

BEGIN_MESSAGE_MAP(ClytCheckListBox, CCheckListBox)
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

ClytCheckListBox::ClytCheckListBox(CString controlName, ClytPosition topLeft, ClytSize extent, CString text)
    : ClytListControl(std::move(controlName), topLeft, extent, std::move(text))
{
    drawRecord.CtlType = ODT_LISTBOX;
    drawRecord.itemAction = ODA_DRAWENTIRE;
    drawRecord.itemState = ODS_CHECKED;
}

BOOL ClytCheckListBox::PreCreateWindow(CREATESTRUCTA& create)
{
    create.dwExStyle |= WS_EX_CLIENTEDGE;
    return CCheckListBox::PreCreateWindow(create);
}

void ClytCheckListBox::CreateControl(ClytForm* owner)
{
    constexpr DWORD style = WS_CHILD | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect, CWnd* parent) { return Create(style, rect, parent, 0); });
    ApplyOptionFlags();

    const ClytRedrawPause pause(*this);
    const int count = displayStrings.GetCount();
    for (int index = 0; index < count; ++index)
    {
        ExpectRoom(AddString(TextOf(displayStrings.GetAt(index))));
        // A new item has no mark.
        if (valueStrings.GetAt(index)[0] == 'X')
            SetCheck(index, BST_CHECKED);
    }
    if (count > 0)
        DrawItem(&drawRecord);
}

void ClytCheckListBox::InsertItem(const CString& value, const CString& display, int check, int hasValue, int place)
{
    PutChecked(hasValue != 0 ? value : display, display, check, place);
    SetCurSel(place);
}

void ClytCheckListBox::MoveCurrentItem(int up)
{
    const int current = GetCurSel();
    if (current == LB_ERR)
    {
        SetControlFocus();
        return;
    }
    if (up != 0 ? current == 0 : current == GetCount() - 1)
    {
        Report(up != 0 ? lytError("FirstItemUp") : lytError("LastItemDown"));
        return;
    }
    const int other = up != 0 ? current - 1 : current + 1;
    const CString display = displayStrings.GetAt(current);
    const CString value = valueStrings.GetAt(current);
    const int check = GetCheck(current);
    const CString otherDisplay = displayStrings.GetAt(other);
    const CString otherValue = valueStrings.GetAt(other);
    const int otherCheck = GetCheck(other);

    DeleteCurrentItem();
    InsertItem(otherValue, otherDisplay, otherCheck, 1, current);
    SetCurSel(other);
    DeleteCurrentItem();
    InsertItem(value, display, check, 1, other);
}

void ClytCheckListBox::AppendItem(CString& result, int index) const
{
    const CString& value = valueStrings.GetAt(index);
    if (value.IsEmpty())
        return;
    const CString text = TextOf(value);
    if (text != lytNoValue)
    {
        result += text;
        return;
    }
    result += GetCheck(index) != BST_UNCHECKED ? 'X' : '-';
    result += value;
}

bool ClytCheckListBox::ComposeParameter(CString& parameter)
{
    // A rule that is missing or does not apply leaves the parameter empty, and the wizard's group takes its place.
    if (!source.parameterRule.IsEmpty())
        dialog->ComposeNamedOutput(source.parameterRule, parameter);
    if (parameter.IsEmpty())
        parameter = lytWizardGroup;
    return true;
}

int ClytCheckListBox::AddListed(CString value, CString display, int index)
{
    PutChecked(std::move(value), std::move(display), BST_CHECKED, index);
    return index;
}

void ClytCheckListBox::PutChecked(CString value, CString display, int check, int place)
{
    ShowItem(display, place);
    if (check == BST_CHECKED)
        SetCheck(place, check);
    valueStrings.InsertAt(place, std::move(value));
    displayStrings.InsertAt(place, std::move(display));
}

void ClytCheckListBox::OnLButtonDblClk(UINT flags, CPoint point)
{
    RunDoubleClick();
    CCheckListBox::OnLButtonDblClk(flags, point);
}
