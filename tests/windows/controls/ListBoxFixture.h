// A form with a list box of three items.
#pragma once

#include "Form.h"

#include <gtest/gtest.h>

class ListBox : public testing::Test
{
protected:
    ListBox()
    {
        form.main.layout = {"ListBox List"};
        form.main.values = {"List=ONE,one", "List=TWO,two", "List=THREE,three"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}};
    }

    Texts Items() const { return robot::ItemsOf(form["List"]); }
    int Selected() const { return robot::SelectedItemOf(form["List"]); }
    void Select(int index) const { robot::SelectItem(form["List"], index); }

    // A list without a selection: the value is none that the list could select.
    void ClearSelection() { form.main.input = InputTo("List=unknown"); }
    // Buttons for the actions on the list.
    void AddButtons()
    {
        form.main.layout.insert(form.main.layout.end(), {"PushButton Up", "PushButton Down", "PushButton Delete"});
        form.main.values.insert(form.main.values.end(), {"Up=UP,List", "Down=DOWN,List", "Delete=DELETE,List"});
    }
    void Press(const std::string& button) const { robot::Click(form[button]); }

    Form form;
};
