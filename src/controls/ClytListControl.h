// What list box and check list share beyond the combo box: a value is always that of an item, and a double click can
// press a button or OK.
#pragma once

#include "controls/ClytItemControl.h"

template <class WINDOW>
class ClytListControl : public ClytItemControl<WINDOW>
{
public:
    using ClytItemControl<WINDOW>::ClytItemControl;

    void AddValues(const CString& text, const CString& separators) override;
    // Selects the item of that value, but never one of the last two; any other value clears the selection.
    void SetValue(const CString& value) override;
    // Without a selection the texts are empty, and the focus moves to the list.
    CString GetValue() override { return SelectedOf(this->valueStrings); }
    CString GetDisplayValue() override { return SelectedOf(this->displayStrings); }
    // Returns the number of items left.
    int DeleteCurrentItem() override;

protected:
    bool TakeOwnStatement(const CStringList& values, const CString& keyword) override;
    // Adds one piece of a text that was split.
    virtual void AddPiece(const CString& text) = 0;
    // Carries out the "DBLCLICK" statement, if there is one.
    void RunDoubleClick();

private:
    CString SelectedOf(const CStringArray& strings);
};
