#include "tree/TreeSource.h"

namespace
{

// Stays loaded for the life of the process. A library that is missing, or that somebody has unloaded, is looked for
// again at each use.
HMODULE lytSourceLibrary = nullptr;

constexpr const char* lytSourceName = "lytsrc";

ClytTreeSource symbolPair;
ClytTreeSource paraPair;

ClytTreeSource FindPair(HMODULE library, const char* start, const char* next)
{
    return {{library, lytSourceName, start}, {library, lytSourceName, next}};
}

bool LoadSource()
{
    if (lytSourceLibrary != nullptr && lytIsLoaded(lytSourceLibrary))
        return true;
    const HMODULE library = lytLoadLibrary(lytSourceName);
    if (library == nullptr)
        return false;
    paraPair = FindPair(library, "lytParaTreeStart", "lytParaTreeNext");
    symbolPair = FindPair(library, "lytTreeStart", "lytTreeNext");
    lytSourceLibrary = library;
    return true;
}

} // namespace

bool lytGetTreeSource(char kind, ClytTreeSource& source)
{
    if (!LoadSource())
        return false;
    source = kind == 'P' ? paraPair : symbolPair;
    return source.start && source.next;
}
