#include "tree/TreeSource.h"

#include "base/PartnerLibrary.h"

#include <type_traits>

namespace
{

// Stays loaded for the life of the process. A library that is missing, or that somebody has taken out of the process, is
// looked for again at each use.
HMODULE lytSourceLibrary = nullptr;

struct SourcePair
{
    lytTreeStartFunction start;
    lytTreeNextFunction next;
};
SourcePair symbolPair;
SourcePair paraPair;

SourcePair FindPair(const char* start, const char* next)
{
    return {lytFindFunction<std::remove_pointer_t<lytTreeStartFunction>>(lytSourceLibrary, start),
            lytFindFunction<std::remove_pointer_t<lytTreeNextFunction>>(lytSourceLibrary, next)};
}

bool LoadSource()
{
    if (lytSourceLibrary != nullptr && lytIsLoaded(lytSourceLibrary))
        return true;
    lytSourceLibrary = lytLoadLibrary("lytsrc");
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
