// A form with one list of a kind, which a button fills from a data library.
#pragma once

#include "Form.h"

#include <gtest/gtest.h>

inline const Texts classes = {"ListBox", "CheckListBox", "ComboBox", "DropListBox"};

// A list of each kind with one item of its own, filled by a button.
class DataLibrary : public testing::Test
{
protected:
    DataLibrary() { form.texts = {{"OWN", "Own"}, {"HEAD", "Head"}}; }

    // A form with one list of the kind, selected, and a button that fills it.
    void List(const std::string& kind, const std::string& source)
    {
        form.main.layout = {kind + " List", "PushButton Fill", "TextBox Edit"};
        form.main.values = {"List=OWN,own", "List=FILLEDBY," + source, "Fill=FILL,List"};
    }
    void ClickFill()
    {
        form.Then(
            [this]
            {
                robot::SelectItem(form["List"], 0);
                robot::Click(form["Fill"]);
            });
    }
    void ExpectItems(const Texts& items)
    {
        form.Then([this, items] { EXPECT_EQ(robot::ItemsOf(form["List"]), items); });
    }
    void ExpectSelected(int index)
    {
        form.Then([this, index] { EXPECT_EQ(robot::SelectedItemOf(form["List"]), index); });
    }

    Form form;
};
