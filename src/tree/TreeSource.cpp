#include "tree/TreeSource.h"

#include <windows.h>

namespace
{

// Stays loaded for the life of the process. A missing library is looked for again at each use.
HMODULE lytSourceLibrary = nullptr;

struct SourcePair
{
    lytTreeStartFunction start;
    lytTreeNextFunction next;
};
SourcePair symbolPair;
SourcePair paraPair;

template <class Function>
Function Find(const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(lytSourceLibrary, name)));
}

SourcePair FindPair(const char* start, const char* next)
{
    return {Find<lytTreeStartFunction>(start), Find<lytTreeNextFunction>(next)};
}

bool LoadSource()
{
    if (lytSourceLibrary != nullptr)
        return true;
    lytSourceLibrary = LoadLibraryA("lytsrc");
    if (lytSourceLibrary == nullptr)
        return false;
    paraPair = FindPair("lytParaTreeStart", "lytParaTreeNext");
    symbolPair = FindPair("lytTreeStart", "lytTreeNext");
    return true;
}

} // namespace

bool lytGetTreeSource(char kind, lytTreeStartFunction& start, lytTreeNextFunction& next)
{
    if (!LoadSource())
        return false;
    const SourcePair& pair = kind == 'P' ? paraPair : symbolPair;
    start = pair.start;
    next = pair.next;
    return start != nullptr && next != nullptr;
}
