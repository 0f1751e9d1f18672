// The items of a list box or a combo box, and the current one.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace platform
{

class ListItems
{
public:
    struct Item
    {
        std::string text;
        LPARAM data = 0;
    };

    int Count() const { return static_cast<int>(m_items.size()); }
    bool Has(int index) const { return index >= 0 && index < Count(); }
    Item& At(int index) { return m_items[static_cast<size_t>(index)]; }
    const Item& At(int index) const { return m_items[static_cast<size_t>(index)]; }
    int Current() const { return m_current; }
    // An index that no item has leaves the current item and gives -1; -1 means none.
    int Select(int index);
    // -1 is the end. Gives the index, -1 when there is no such place, -2 when there is no room for the item.
    int Insert(int index, const char* text);
    // Gives the number of items left, -1 when there is no such item.
    int Delete(int index);
    void Clear();
    // Where a sorted list takes a text.
    int SortedPlace(const char* text) const;
    // The first item at or after the start, around the end, that begins with the text, without case; -1 for none.
    int FindPrefix(const std::string& prefix, int start) const;

    // Copies the text of an item as the platform does, with no regard to the buffer's size.
    LRESULT CopyOut(int index, LPARAM buffer) const;

private:
    std::vector<Item> m_items;
    int m_current = -1;
};

} // namespace platform
