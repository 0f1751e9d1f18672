#include "controls/ClytComboBoxControl.h"

#include "base/ClytRedrawPause.h"
#include "base/Words.h"
#include "controls/TypeWords.h"

namespace
{

struct ComboKind
{
    const char* word;
    DWORD style;
};

constexpr ComboKind comboKinds[] = {
    {lytTypeOf(ClytKind::Combo).word, WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWN | CBS_AUTOHSCROLL},
    {lytTypeOf(ClytKind::DropList).word, WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWNLIST},
};

// The place of the fixed first item in a "FILLEDBY" statement.
constexpr int firstItemPlace = 4;

} // namespace

ClytComboBoxControl::ClytComboBoxControl(CString typeWord, CString controlName, ClytPosition topLeft, ClytSize extent,
                                         CString text)
    : ClytItemControl(std::move(controlName), topLeft, extent, std::move(text)), comboKind(std::move(typeWord))
{
}

BOOL ClytComboBoxControl::PreCreateWindow(CREATESTRUCTA& create)
{
    create.dwExStyle |= WS_EX_CLIENTEDGE;
    create.style |= WS_VSCROLL | CBS_NOINTEGRALHEIGHT;
    return CComboBox::PreCreateWindow(create);
}

void ClytComboBoxControl::CreateControl(ClytForm* owner)
{
    CreateCommon(owner, ClytFit::ToLayout,
                 [&](const CRect& rect, CWnd* parent)
                 {
                     for (const ComboKind& known : comboKinds)
                     {
                         if (lytSameWord(comboKind, known.word))
                             return Create(known.style, rect, parent, 0);
                     }
                     return TRUE;
                 });
    ApplyOptionFlags();

    const ClytRedrawPause pause(*this);
    for (int index = 0; index < displayStrings.GetCount(); ++index)
        ExpectRoom(AddString(TextOf(displayStrings.GetAt(index))));
    SetCurSel(0);
}

void ClytComboBoxControl::SetValue(const CString& value)
{
    if (lytMeans<ClytValueWord::Fill>(value))
    {
        FillByLibrary();
        return;
    }
    for (int index = 0; index < valueStrings.GetCount(); ++index)
    {
        if (valueStrings.GetAt(index) == value)
        {
            SetCurSel(index);
            return;
        }
    }
    SetWindowText(value);
}

CString ClytComboBoxControl::GetValue()
{
    const int index = GetCurSel();
    if (index != CB_ERR)
        return valueStrings.GetAt(index);
    CString text;
    GetWindowText(text);
    return text;
}

int ClytComboBoxControl::DeleteCurrentItem()
{
    const int index = GetCurSel();
    if (index != CB_ERR)
        return RemoveItem(index);
    SetControlFocus();
    return 1;
}

void ClytComboBoxControl::AddItem(const CString& value, const CString& display, int hasValue, int place)
{
    PutItem(hasValue != 0 ? value : display, display, place);
    SetCurSel(0);
}

void ClytComboBoxControl::MoveCurrentItem(int up)
{
    const int current = GetCurSel();
    if (current == CB_ERR)
    {
        SetControlFocus();
        return;
    }
    if (up != 0 && current == 0)
    {
        Report(lytError("FirstItemUp"));
        return;
    }
    // The last item has none below it, and the arrays refuse the index.
    ChangePlaces(current, up != 0 ? current - 1 : current + 1);
}

void ClytComboBoxControl::TakeSource(const CStringList& values)
{
    ClytItemControl::TakeSource(values);
    const POSITION place = values.FindIndex(firstItemPlace);
    if (place == nullptr)
        return;
    // `key/value`, or one text that is both.
    const CString& item = values.GetAt(place);
    const int slash = item.Find('/');
    firstItemKey = slash >= 0 ? item.Left(slash) : item;
    firstItemValue = item.Mid(slash + 1);
}

void ClytComboBoxControl::AppendItem(CString& result, int index) const
{
    const CString& display = displayStrings.GetAt(index);
    // Unlike in a list box, a text that is not a key is not taken literally.
    result += valueStrings.GetAt(index).IsEmpty() ? display : TextOf(display);
}

void ClytComboBoxControl::AddHeadItem()
{
    if (!firstItemKey.IsEmpty())
        AddItem(firstItemValue, TextOf(firstItemKey), 1, 0);
}
