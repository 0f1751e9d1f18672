// The controls of a live window, as scripts name, read and work them.
#pragma once

#include "script/Script.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace script
{

// The word of a control's type ("edit", "list" ...), or its window class when scripts have no word for it.
std::string TypeOf(HWND control);
// The control that a step means, or null.
HWND FindControl(HWND dialog, const Target& target);
// How a step would name it, for messages.
std::string NameOf(const Target& target);
// What `read` prints: the text of a field, "checked" or "unchecked" of a mark, the chosen item of a list or tree.
std::string ReadControl(HWND control);
// The items of a list, combo box or tree; items of a tree are indented, marked items of a list begin with "[x] ".
std::vector<std::string> ReadItems(HWND control);
bool HasState(HWND control, const std::string& state);
// One line on each control of the window.
std::vector<std::string> DescribeControls(HWND dialog);

// The item of a tree that the labels on the way to it name, such as "Roof/Tiles/North side"; null for none.
HTREEITEM FindTreeItem(HWND tree, const std::string& path);

// The place of an item in client coordinates of its list or tree, scrolled into view; false without it.
bool ItemPlace(HWND control, const std::string& item, RECT& place);
// The index of a list's or combo box's item, or -1.
int ItemIndex(HWND list, const std::string& item);
// True when the item of a check list bears its mark.
bool IsItemChecked(HWND list, int index);

} // namespace script
