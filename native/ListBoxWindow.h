// A list of items of which one can be selected. The caret is the item from which keys continue.
#pragma once

#include "ListItems.h"
#include "Window.h"

namespace platform
{

class ListBoxWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCreated() override;
    // Whole items only.
    SIZE Adjusted(SIZE wanted) const override;
    // Without the scroll bar, which is beside it.
    SIZE ClientSize() const override;

private:
    LRESULT HandleItems(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT ChangeItems(UINT message, int index, const char* itemText);
    LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
    bool IsOwnerDrawn() const { return HasStyle(LBS_OWNERDRAWFIXED); }
    int ItemAt(LPARAM point) const;
    int VisibleItems() const;
    bool HasBar() const;
    LRESULT ItemRect(int index, RECT& rect) const;
    LRESULT Select(int index);
    LRESULT Delete(int index);
    int LastTop() const;
    void ShowItem(int index);
    void TakeKey(WPARAM key);
    void TakeCharacter(WPARAM character);
    // Tells the parent what the user selects, even when it was selected before.
    void Choose(int index);
    void Tell(UINT code) const;

    ListItems m_items;
    int m_itemHeight = LineHeightOfSystem();
    int m_caret = 0;
    int m_top = 0;
    bool m_isPressed = false;
    bool m_hadBar = false; // before the items changed

    static int LineHeightOfSystem();
};

} // namespace platform
