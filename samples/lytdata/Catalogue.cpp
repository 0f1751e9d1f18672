// The catalogue as a list: the symbols directly below one of its groups.
//
//     OpenSymbols, NextSymbol    the parameter is the key of the group
//
// They are read from the same data source that the tree browser shows, so that the two never part.
#include "lytdata.h"
#include "lytsrc.h"

#include <windows.h>

#include <string>
#include <vector>

extern "C" __declspec(dllexport) lytDataStart OpenSymbols;
extern "C" __declspec(dllexport) lytDataNext NextSymbol;

namespace
{

std::vector<lytTreeRecord> symbols;
size_t nextSymbol = 0;

template <class Function>
Function SourceFunction(const char* name)
{
    // One that could not be loaded is tried again by the next call.
    static HMODULE source = nullptr;
    if (source == nullptr)
        source = LoadLibraryA("lytsrc");
    FARPROC address = source != nullptr ? GetProcAddress(source, name) : nullptr;
    return reinterpret_cast<Function>(reinterpret_cast<void*>(address));
}

// A label without the marks of its columns.
std::string PlainLabel(const lytTreeRecord& record)
{
    std::string label = record.szLabel;
    for (size_t mark = label.find("##"); mark != std::string::npos; mark = label.find("##"))
        label.replace(mark, 2, ", ");
    return label;
}

void CopyText(const std::string& text, char* buffer, int size)
{
    buffer[text.copy(buffer, static_cast<size_t>(size))] = '\0';
}

} // namespace

void OpenSymbols(const char* parameter)
{
    symbols.clear();
    nextSymbol = 0;
    const auto start = SourceFunction<lytTreeStartFunction>("lytTreeStart");
    const auto next = SourceFunction<lytTreeNextFunction>("lytTreeNext");
    if (start == nullptr || next == nullptr || start("") == 0)
        return;

    const std::string group = parameter;
    bool inGroup = false;
    int32_t groupLevel = 0;
    for (lytTreeRecord record = {}; next(&record) != 0;)
    {
        inGroup = inGroup && record.nLevel > groupLevel;
        if (inGroup && record.nType == LYT_TREE_SYMBOL && record.nLevel == groupLevel + 1)
            symbols.push_back(record);
        if (record.szKey != group)
            continue;
        inGroup = true;
        groupLevel = record.nLevel;
    }
}

int NextSymbol(char* display, int size, char* value, int valueSize)
{
    if (nextSymbol >= symbols.size())
        return 0;
    const lytTreeRecord& symbol = symbols[nextSymbol++];
    CopyText(PlainLabel(symbol), display, size);
    CopyText(symbol.szKey, value, valueSize);
    return 1;
}
