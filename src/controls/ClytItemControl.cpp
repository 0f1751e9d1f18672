#include "controls/ClytItemControl.h"

#include "base/ClytRedrawPause.h"
#include "controls/ClytWaitCursor.h"
#include "environment/ClytEnvironment.h"
#include "model/ClytObserver.h"

#include <new>
#include <type_traits>
#include <utility>

template <class WINDOW>
ClytDataLibrary ClytItemControl<WINDOW>::library;

template <class WINDOW>
void ClytItemControl<WINDOW>::SetOption(const CStringList& values, const CString& keyword)
{
    // The option word comes first: an item whose value is one of them never becomes an item.
    if (this->TakeCommonOption(values.GetHead()) != 0)
        return;
    if (lytMeans<ClytKeyword::FilledBy>(keyword))
        TakeSource(values);
    else if (!TakeOwnStatement(values, keyword))
        AddDefinedItem(values.GetHead(), keyword);
}

template <class WINDOW>
void ClytItemControl<WINDOW>::GetAllValues(CString& result, const CString& separators)
{
    const int length = separators.GetLength();
    const int last = displayStrings.GetCount() - 1;
    if (length > 1)
        result += separators[1];
    for (int index = 0; index <= last; ++index)
    {
        AppendItem(result, index);
        if (index < last && length > 0)
            result += separators[0];
    }
    if (length > 2)
        result += separators[2];
}

template <class WINDOW>
void ClytItemControl<WINDOW>::DoAction(const ClytStateWord& word)
{
    if (word.GetMeaning() == ClytState::Clear)
        EmptyFromSelection();
    else
        this->FillByLibrary();
}

template <class WINDOW>
void ClytItemControl<WINDOW>::ReplaceCurrentItem(const CString& text)
{
    const int index = this->GetCurSel();
    if (index == LB_ERR)
    {
        SetControlFocus();
        return;
    }
    this->DeleteString(index);
    valueStrings.RemoveAt(index);
    displayStrings.RemoveAt(index);
    ExpectRoom(this->InsertString(index, text));
    valueStrings.InsertAt(index, text);
    displayStrings.InsertAt(index, text);
    this->SetCurSel(index);
}

// Every failure on the way ends the fill without a message, once a list with a selection has been emptied. Only an
// empty library name is reported, and does not end it: the library may have been loaded by another list.
template <class WINDOW>
void ClytItemControl<WINDOW>::FillByLibrary()
{
    const ClytWaitCursor waiting;
    lytTell(&ClytObserver::LibraryAsked, *this);
    EmptyFromSelection();
    CString parameter;
    if (!ComposeParameter(parameter))
        return;
    if (source.library.IsEmpty())
        this->Report(lytError("LibraryNotNamed"), CString(), this->name);
    if (!library.Load(source.library, source.span))
        return;
    const auto start = library.template Find<lytDataStart>(source.startFunction, source.span);
    if (!start)
        return;
    start(parameter);
    const auto next = library.template Find<lytDataNext>(source.nextFunction, source.span);
    if (!next)
        return;
    const ClytRedrawPause pause(*this);
    AddHeadItem();
    ClytDataListing listing(next);
    AddItems(listing);
}

template <class WINDOW>
void ClytItemControl<WINDOW>::AddDefinedItem(const CString& value, const CString& displayKey)
{
    displayStrings.Add(displayKey);
    valueStrings.Add(value);
}

template <class WINDOW>
bool ClytItemControl<WINDOW>::ComposeParameter(CString& parameter)
{
    return source.parameterRule.IsEmpty() || this->dialog->ComposeNamedOutput(source.parameterRule, parameter) != 0;
}

template <class WINDOW>
int ClytItemControl<WINDOW>::AddListed(CString value, CString display, int /*index*/)
{
    PutItem(std::move(value), std::move(display), 0);
    return 0;
}

// A list that a failure cuts short gets a selection, too. Without one, the next fill would not empty what this one has added.
template <class WINDOW>
void ClytItemControl<WINDOW>::AddItems(ClytDataListing& listing)
{
    struct LastSelection
    {
        ~LastSelection()
        {
            if (index != LB_ERR)
                window.SetCurSel(index);
        }
        const WINDOW& window;
        int index = LB_ERR;
    };
    LastSelection selection{*this};
    for (int index = 0; listing.Next(); ++index)
        selection.index = AddListed(listing.GetValue(), listing.GetDisplay(), index);
}

template <class WINDOW>
CString ClytItemControl<WINDOW>::TextOf(const CString& key) const
{
    return lytEnvironment.GetText(this->dialog->GetTextSection(), key);
}

template <class WINDOW>
void ClytItemControl<WINDOW>::PutItem(CString value, CString display, int place)
{
    constexpr int atTheEnd = -1;
    ShowItem(display, place != 0 ? place : atTheEnd);
    // The arrays grow at their end wherever the window shows the item: after an insertion elsewhere the two get out of step.
    valueStrings.Add(std::move(value));
    displayStrings.Add(std::move(display));
}

template <class WINDOW>
void ClytItemControl<WINDOW>::ExpectRoom(LRESULT answer)
{
    static_assert(LB_ERRSPACE == CB_ERRSPACE);
    if (answer == LB_ERRSPACE)
        throw std::bad_alloc();
}

template <class WINDOW>
void ClytItemControl<WINDOW>::ShowItem(const CString& text, int place)
{
    constexpr UINT insert = std::is_base_of_v<CListBox, WINDOW> ? LB_INSERTSTRING : CB_INSERTSTRING;
    // Straight to the platform's procedure: ten thousand items need not each pass the message maps.
    const auto string = reinterpret_cast<LPARAM>(text.GetString());
    ExpectRoom(this->DefWindowProc(insert, static_cast<WPARAM>(place), string));
}

template <class WINDOW>
int ClytItemControl<WINDOW>::RemoveItem(int index)
{
    valueStrings.RemoveAt(index);
    displayStrings.RemoveAt(index);
    this->DeleteString(index);
    return this->SetCurSel(index == this->GetCount() ? index - 1 : index);
}

template <class WINDOW>
void ClytItemControl<WINDOW>::EmptyFromSelection()
{
    if (this->GetCurSel() == LB_ERR)
        return;
    valueStrings.RemoveAll();
    displayStrings.RemoveAll();
    this->ResetContent();
}

template <class WINDOW>
void ClytItemControl<WINDOW>::ChangePlaces(int current, int other)
{
    const CString display = displayStrings.GetAt(current);
    const CString value = valueStrings.GetAt(current);
    const CString otherDisplay = displayStrings.GetAt(other);
    const CString otherValue = valueStrings.GetAt(other);

    // An item that is added at position 0 goes to the end, and the arrays add at their end at any position. So the
    // order that the user sees and the order of the values get out of step, which descriptions in use rely on.
    this->DeleteCurrentItem();
    this->AddItem(otherValue, otherDisplay, 1, current);
    this->SetCurSel(other);
    this->DeleteCurrentItem();
    this->AddItem(value, display, 1, other);
}

template class ClytItemControl<CListBox>;
template class ClytItemControl<CCheckListBox>;
template class ClytItemControl<CComboBox>;
