// The open catalogue browser, as a user sees and works it.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

class TreeWindow
{
public:
    explicit TreeWindow(HWND dialog) : m_dialog(dialog), m_tree(GetDlgItem(dialog, 1000)) {}

    HWND Dialog() const { return m_dialog; }
    HWND Tree() const { return m_tree; }

    // All items from top to bottom, open or not: `label [image]`, two blanks deeper for each level.
    std::vector<std::string> Items() const;
    // The labels of the items that are open.
    std::vector<std::string> OpenItems() const;
    // The first item with the label; null without one.
    HTREEITEM Find(const std::string& label) const;
    UINT StateOf(const std::string& label) const;
    void SetState(const std::string& label, UINT state) const;
    // The label of the selected item; empty without one.
    std::string Selected() const;
    std::string FirstVisible() const;

    void Select(const std::string& label) const;
    void SelectNothing() const;
    void Expand(const std::string& label) const;
    void Collapse(const std::string& label) const;
    void DoubleClick(const std::string& label) const;
    void Resize(int width, int height) const;
    SIZE Size() const;
    // The rectangle of a control in the dialog's client area.
    RECT PlaceOf(int control) const;

    // Press OK and Cancel.
    void Confirm() const;
    void Cancel() const;
    // Selects the item and presses OK.
    void Pick(const std::string& label) const;

private:
    HTREEITEM Next(HTREEITEM item, UINT relation) const;
    TVITEMA Request(HTREEITEM item, UINT mask) const;
    void Collect(HTREEITEM item, int depth, std::vector<HTREEITEM>& items, std::vector<int>& depths) const;

    HWND m_dialog;
    HWND m_tree;
};
