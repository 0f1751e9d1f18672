// A data library for description files: lists and single texts out of lytdata.txt, which is beside the library.
//
//     OpenList, NextItem    the items of the list that the parameter names; without one, of the first list
//     OpenMarked, NextItem  of a list, the items that a text marks with an X: the parameter is `Xroof|-walls/list`, as
//                           a check list writes its marks; without marks, all of them
//     OpenNames, NextName   the names of all lists
//     LookUp                the value of one item: the parameter is `list/item`
//     Remember              an action: keeps the parameter, so that the list `remembered` offers it
//
// The file is read again by each call but the Next functions, so that it can be edited while a dialog is open.
#include "lytdata.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#define LYTDATA_EXPORT extern "C" __declspec(dllexport)

LYTDATA_EXPORT lytDataStart OpenList;
LYTDATA_EXPORT lytDataStart OpenMarked;
LYTDATA_EXPORT lytDataNext NextItem;
LYTDATA_EXPORT lytDataStart OpenNames;
LYTDATA_EXPORT lytDataNext NextName;
LYTDATA_EXPORT lytDataText LookUp;
LYTDATA_EXPORT lytDataText Remember;

namespace
{

struct Item
{
    std::string display;
    std::string value;
};

struct List
{
    std::string name;
    std::vector<Item> items;
};

// One listing at a time: a control reads a listing to its end before another control opens one.
class Listing
{
public:
    void Open(std::vector<Item> content)
    {
        items = std::move(content);
        position = 0;
    }
    const Item* Next() { return position < items.size() ? &items[position++] : nullptr; }

private:
    std::vector<Item> items;
    size_t position = 0;
};

constexpr const char* rememberedName = "remembered";
List remembered = {rememberedName, {}};
Listing openItems;
Listing openNames;

std::string Trimmed(const std::string& text)
{
    constexpr const char* blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    return first != std::string::npos ? text.substr(first, text.find_last_not_of(blanks) - first + 1) : std::string();
}

// `text = value`, or a text that is its own value.
Item ItemOf(const std::string& line)
{
    const size_t separator = line.find('=');
    if (separator == std::string::npos)
        return {line, line};
    return {Trimmed(line.substr(0, separator)), Trimmed(line.substr(separator + 1))};
}

std::string DataFileName()
{
    HMODULE self = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&remembered), &self);
    char path[MAX_PATH] = "";
    GetModuleFileNameA(self, path, MAX_PATH);
    const std::string library = path;
    return library.substr(0, library.find_last_of("\\/") + 1) + "lytdata.txt";
}

// `[name]` opens a list, the lines below it are its items; blank lines and lines that begin with `;` are comments.
std::vector<List> ReadLists()
{
    std::vector<List> lists;
    const std::unique_ptr<FILE, int (*)(FILE*)> file(fopen(DataFileName().c_str(), "r"), fclose);
    char buffer[1024] = "";
    while (file != nullptr && fgets(buffer, sizeof buffer, file.get()) != nullptr)
    {
        const std::string line = Trimmed(buffer);
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '[' && line.back() == ']')
            lists.push_back({line.substr(1, line.size() - 2), {}});
        else if (!lists.empty())
            lists.back().items.push_back(ItemOf(line));
    }
    lists.push_back(remembered);
    return lists;
}

// The items of the named list; none when there is no such list.
std::vector<Item> ItemsOf(const std::string& name)
{
    const std::vector<List> lists = ReadLists();
    const auto found = name.empty() ? lists.begin() : std::ranges::find(lists, name, &List::name);
    return found != lists.end() ? found->items : std::vector<Item>();
}

// As much of the text as fits; `size` characters and a NUL.
void CopyText(const std::string& text, char* buffer, int size)
{
    buffer[text.copy(buffer, static_cast<size_t>(size))] = '\0';
}

int Deliver(Listing& listing, char* display, int size, char* value, int valueSize)
{
    const Item* item = listing.Next();
    if (item == nullptr)
        return 0;
    CopyText(item->display, display, size);
    CopyText(item->value, value, valueSize);
    return 1;
}

} // namespace

void OpenList(const char* parameter)
{
    openItems.Open(ItemsOf(parameter));
}

int NextItem(char* display, int size, char* value, int valueSize)
{
    return Deliver(openItems, display, size, value, valueSize);
}

void OpenMarked(const char* parameter)
{
    const std::string request = parameter;
    const size_t slash = std::min(request.rfind('/'), request.size());
    const std::string marks = "|" + request.substr(0, slash) + "|";
    std::vector<Item> items = ItemsOf(request.substr(std::min(slash + 1, request.size())));
    if (marks != "||")
        std::erase_if(items,
                      [&](const Item& item) { return marks.find("|X" + item.value + "|") == std::string::npos; });
    openItems.Open(std::move(items));
}

void OpenNames(const char* /*parameter*/)
{
    std::vector<Item> names;
    for (const List& list : ReadLists())
        names.push_back({list.name, list.name});
    openNames.Open(std::move(names));
}

int NextName(char* display, int size, char* value, int valueSize)
{
    return Deliver(openNames, display, size, value, valueSize);
}

int LookUp(const char* parameter, char* text, int size)
{
    const std::string request = parameter;
    const size_t slash = std::min(request.find('/'), request.size());
    const std::string wanted = request.substr(std::min(slash + 1, request.size()));
    const std::vector<Item> items = ItemsOf(request.substr(0, slash));
    const auto found = std::ranges::find(items, wanted, &Item::display);
    CopyText(found != items.end() ? found->value : std::string(), text, size);
    return found != items.end() ? 1 : 0;
}

int Remember(const char* parameter, char* text, int size)
{
    remembered.items.push_back({parameter, parameter});
    CopyText(parameter, text, size);
    return 1;
}
