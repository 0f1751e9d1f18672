#include "lytcall/TreeItems.h"

namespace lytcall
{

namespace
{

HTREEITEM Next(HWND tree, UINT relation, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::string LabelOf(HWND tree, HTREEITEM item)
{
    char label[512] = "";
    TVITEMA record = {};
    record.mask = TVIF_TEXT;
    record.hItem = item;
    record.pszText = label;
    record.cchTextMax = sizeof label;
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&record));
    return label;
}

} // namespace

HTREEITEM FindTreeItem(HWND tree, const std::string& path)
{
    // A label may hold a slash itself, so each label is compared with the beginning of what is left.
    HTREEITEM item = Next(tree, TVGN_ROOT, nullptr);
    std::string rest = path;
    while (item != nullptr)
    {
        const std::string label = LabelOf(tree, item);
        if (rest == label)
            return item;
        if (rest.starts_with(label + "/") && Next(tree, TVGN_CHILD, item) != nullptr)
        {
            rest.erase(0, label.size() + 1);
            item = Next(tree, TVGN_CHILD, item);
        }
        else
            item = Next(tree, TVGN_NEXT, item);
    }
    return nullptr;
}

std::string TreeItemPath(HWND tree, HTREEITEM item)
{
    std::string path;
    for (; item != nullptr; item = Next(tree, TVGN_PARENT, item))
        path = LabelOf(tree, item) + (path.empty() ? "" : "/" + path);
    return path;
}

std::vector<std::string> VisibleTreeItems(HWND tree)
{
    std::vector<std::string> items;
    HTREEITEM item = Next(tree, TVGN_ROOT, nullptr);
    for (; item != nullptr; item = Next(tree, TVGN_NEXTVISIBLE, item))
    {
        std::string indent;
        for (HTREEITEM parent = Next(tree, TVGN_PARENT, item); parent != nullptr;
             parent = Next(tree, TVGN_PARENT, parent))
            indent += "  ";
        items.push_back(indent + LabelOf(tree, item));
    }
    return items;
}

bool TreeItemPlace(HWND tree, HTREEITEM item, RECT& place)
{
    SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    // The message takes the item's handle out of the rectangle that it fills.
    *reinterpret_cast<HTREEITEM*>(&place) = item;
    return SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place)) != 0;
}

} // namespace lytcall
