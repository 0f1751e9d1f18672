// A form with a check list of three items, the first of them checked.
#pragma once

#include "Form.h"

#include <gtest/gtest.h>

class CheckList : public testing::Test
{
protected:
    CheckList()
    {
        form.main.layout = {"CheckListBox List"};
        form.main.values = {"List=ONE,Xone", "List=TWO,xtwo", "List=THREE,tri"};
        form.main.output = {"(\"%s\", List(\"/\"))"};
        form.texts = {{"ONE", "First"}, {"TWO", "Second"}, {"THREE", "Third"}};
    }

    Texts Items() const { return robot::ItemsOf(form["List"]); }
    int Selected() const { return robot::SelectedItemOf(form["List"]); }
    void Select(int index) const { SendMessageA(form["List"], LB_SETCURSEL, static_cast<WPARAM>(index), 0); }
    void Press(const std::string& button) const { robot::Click(form[button]); }
    void AddButtons()
    {
        form.main.layout.insert(form.main.layout.end(), {"PushButton Up", "PushButton Down", "PushButton Delete"});
        form.main.values.insert(form.main.values.end(), {"Up=UP,List", "Down=DOWN,List", "Delete=DELETE,List"});
    }
    // A press of the left button on the mark of an item, and after its text.
    void ClickMark(int index) const { ClickItem(index, 6); }
    void ClickText(int index) const { ClickItem(index, 60); }
    void ClickItem(int index, int x) const
    {
        const RECT item = ItemArea(index);
        robot::ClickAt(form["List"], x, (item.top + item.bottom) / 2);
    }
    RECT ItemArea(int index) const
    {
        RECT item = {};
        SendMessageA(form["List"], LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        return item;
    }

    Form form;
};
