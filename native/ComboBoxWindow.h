// A drop-down list. The kind that takes free text has an edit field inside, which then holds the focus and the text.
#pragma once

#include "EditWindow.h"
#include "ListItems.h"

namespace platform
{

class ComboBoxWindow;

// The field inside: keys that are meant for the list go to the combo box.
class ComboEditWindow : public EditWindow
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ComboBoxWindow& Combo() const;
};

class ComboBoxWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCreated() override;
    // The height is that of the closed box.
    SIZE Adjusted(SIZE wanted) const override;

    // The keys that the dialog is to leave alone: Return and Esc close an open list.
    LRESULT DialogCodes(WPARAM key) const;
    // False when the key means nothing to the list.
    bool TakeKey(UINT message, WPARAM key);

private:
    LRESULT HandleItems(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleText(UINT message, WPARAM wParam, LPARAM lParam);
    void HandleEdit(UINT code);
    void TakeCharacter(WPARAM character);
    void TakeFocus();
    void TakeClick(LPARAM point);
    bool HasEdit() const { return m_edit != nullptr; }
    // Puts the field where the frame and the arrow leave room.
    void PlaceField() const;
    void MoveCaretToText();
    void Open();
    void Close(UINT why);
    void Choose(int index);
    int Place(WPARAM key) const;
    // Brings the text of the current item to the window, without a notification.
    void ShowCurrent();
    void ShowText(const std::string& shown);
    LRESULT Delete(int index);

    ListItems m_items;
    HWND m_edit = nullptr;
    int m_caret = 0;
    bool m_isOpen = false;
    bool m_isQuiet = false; // while the program, and not the user, changes the text
    // The first character that the user types after choosing with a key leaves the choice, as on Windows.
    bool m_keepsCurrent = false;
};

} // namespace platform
