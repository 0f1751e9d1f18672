// Items of a tree control, named by the labels on the way to them: "Roof/Tiles/North side".
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

namespace lytcall
{

// The item with that path, or null.
HTREEITEM FindTreeItem(HWND tree, const std::string& path);
std::string TreeItemPath(HWND tree, HTREEITEM item);
// Every item that stands open to view, indented by its depth.
std::vector<std::string> VisibleTreeItems(HWND tree);
bool TreeItemPlace(HWND tree, HTREEITEM item, RECT& place);

} // namespace lytcall
