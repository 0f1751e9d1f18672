#include "controls/ClytListControl.h"

#include "base/ClytRedrawPause.h"
#include "controls/ClytFocusKeeper.h"
#include "controls/ClytPushButtonControl.h"
#include "dlgfile/Tokenize.h"
#include "model/ClytObserver.h"

template <class WINDOW>
void ClytListControl<WINDOW>::AddValues(const CString& text, const CString& separators)
{
    ClytTokenList tokens;
    lytTokenizeGrouped(text, separators, tokens);
    const ClytRedrawPause pause(*this);
    const int length = separators.GetLength();
    if (length == 1)
        AddPiece(text);
    if (length != 2 && length != 3)
        return;
    for (POSITION place = tokens.GetHeadPosition(); place != nullptr;)
        AddPiece(tokens.GetNext(place).GetText());
}

template <class WINDOW>
void ClytListControl<WINDOW>::SetValue(const CString& value)
{
    // The search stops two items before the end. With fewer than two items the bound wraps round, and the search runs
    // on until it finds the value or leaves the array.
    const unsigned bound = static_cast<unsigned>(this->valueStrings.GetCount()) - 2U;
    int found = LB_ERR;
    for (unsigned index = 0; index < bound && found == LB_ERR; ++index)
    {
        if (this->valueStrings.GetAt(static_cast<int>(index)) == value)
            found = static_cast<int>(index);
    }
    this->SetCurSel(found);
}

template <class WINDOW>
int ClytListControl<WINDOW>::DeleteCurrentItem()
{
    const int index = this->GetCurSel();
    if (index == LB_ERR)
        this->SetControlFocus();
    else
        this->RemoveItem(index);
    return this->GetCount();
}

template <class WINDOW>
bool ClytListControl<WINDOW>::TakeOwnStatement(const CStringList& values, const CString& keyword)
{
    if (!lytMeans<ClytKeyword::DoubleClick>(keyword))
        return false;
    this->action.Set(keyword, values, this->StatementSpan());
    return true;
}

template <class WINDOW>
void ClytListControl<WINDOW>::RunDoubleClick()
{
    if (!lytMeans<ClytKeyword::DoubleClick>(this->action.GetKeyword()))
        return;
    const ClytFocusKeeper keeper(*this->dialog);
    const CString& target = this->action.GetValues().GetHead();
    if (lytMeans<ClytValueWord::Ok>(target))
        this->dialog->OnOK();
    else if (ClytControl* control = this->dialog->FindControl(target))
        lytClickControl(*control, *this->dialog);
    else
        lytTellMissing(ClytMissing::DoubleClickTarget, target, this, this->action.GetSpan());
}

template <class WINDOW>
CString ClytListControl<WINDOW>::SelectedOf(const CStringArray& strings)
{
    const int index = this->GetCurSel();
    if (index != LB_ERR)
        return strings.GetAt(index);
    this->SetControlFocus();
    return CString();
}

template class ClytListControl<CListBox>;
template class ClytListControl<CCheckListBox>;
