// What list box, check list and combo box share: items of two texts each, the statements and the library that they come
// from, and the operations that are the same in all three. What differs is in the classes themselves.
//
// An item has the text that is shown and the value that is delivered; an index names both and the window's item. Where
// an index leaves the arrays, the invalid-argument exception is raised.
#pragma once

#include "controls/ClytDataLibrary.h"
#include "controls/ClytWindowControl.h"

template <class WINDOW>
class ClytItemControl : public ClytWindowControl<WINDOW>
{
public:
    using ClytWindowControl<WINDOW>::ClytWindowControl;

    void SetOption(const CStringList& values, const CString& keyword) override;
    void SaveState() override { this->savedState = this->GetCurSel(); }
    void SetControlFocus() override { this->SetFocus(); }
    // The separators go by position: between items, before the first, after the last.
    void GetAllValues(CString& result, const CString& separators) override;
    int IsChanged() override { return this->GetCurSel() != this->savedState ? 1 : 0; }
    // "CLEAR" empties the list unless nothing is selected; any other word fills it.
    void DoAction(const ClytStateWord& word) override;
    void ReplaceCurrentItem(const CString& text) override;
    void FillByLibrary() override;
    int HasContent() override { return this->GetCount() != 0 ? 1 : 0; }

    // The values of all items, even where the window shows them in another order.
    const CStringArray& GetItemValues() const { return valueStrings; }
    // Adds an item before the window is there.
    void AddDefinedItem(const CString& value, const CString& displayKey);

protected:
    // Takes a "FILLEDBY" statement.
    virtual void TakeSource(const CStringList& values) { source.TakeStatement(values, this->StatementSpan()); }
    // Takes a statement that only this class knows; false when it is an item.
    virtual bool TakeOwnStatement(const CStringList& /*values*/, const CString& /*keyword*/) { return false; }
    // Appends an item as GetAllValues delivers it.
    virtual void AppendItem(CString& result, int index) const = 0;
    // Composes the parameter of a library fill; false when the fill ends here.
    virtual bool ComposeParameter(CString& parameter);
    // Adds what comes before the items of a library.
    virtual void AddHeadItem() {}
    // Adds an item of a library, counted from 0; returns which item is selected then.
    virtual int AddListed(CString value, CString display, int index);

    // The text of a key in the dialog's text section.
    CString TextOf(const CString& key) const;

    // Puts an item at the end of the arrays and at a place in the window, where 0 means the end, too.
    void PutItem(CString value, CString display, int place);
    // Checks the window's result for a text that was added. One that it has no room for raises std::bad_alloc: every
    // later item would be at the place of another's value.
    static void ExpectRoom(LRESULT answer);
    // Inserts a text in the window.
    void ShowItem(const CString& text, int place);
    // Takes an item off and selects the one in its place, the last one, or none; returns what the window returns.
    int RemoveItem(int index);
    // Empties the list if an item is selected: deleting the selected item selects another, until none is left.
    void EmptyFromSelection();
    // Lets the selected item and its neighbour change places by taking each off and adding the other in its place.
    void ChangePlaces(int current, int other);

    CStringArray displayStrings; // text keys at creation, later also plain texts
    CStringArray valueStrings;
    ClytListSource source;

private:
    // Adds the items of a library. What each one selects is selected once, after the last.
    void AddItems(ClytDataListing& listing);

    // One library for each class, for the whole process.
    static ClytDataLibrary library;
};
