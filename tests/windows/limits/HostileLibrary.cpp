#include "HostileLibrary.h"

#define HOSTILE_EXPORT extern "C" __declspec(dllexport)

namespace
{

HostileActs acts;

} // namespace

HOSTILE_EXPORT HostileActs* Acts()
{
    return &acts;
}

HOSTILE_EXPORT int Text(const char* parameter, char* text, int size)
{
    return acts.text != nullptr ? acts.text(parameter, text, size) : 0;
}

HOSTILE_EXPORT void Start(const char* parameter)
{
    if (acts.start != nullptr)
        acts.start(parameter);
}

HOSTILE_EXPORT int Next(char* display, int size, char* value, int valueSize)
{
    return acts.next != nullptr ? acts.next(display, size, value, valueSize) : 0;
}

HOSTILE_EXPORT int32_t lytTreeStart(const char* selection)
{
    return acts.treeStart != nullptr ? acts.treeStart(selection) : 1;
}

HOSTILE_EXPORT int32_t lytTreeNext(lytTreeRecord* record)
{
    return acts.treeNext != nullptr ? acts.treeNext(record) : 0;
}

HOSTILE_EXPORT int32_t lytParaTreeStart(const char* selection)
{
    return lytTreeStart(selection);
}

HOSTILE_EXPORT int32_t lytParaTreeNext(lytTreeRecord* record)
{
    return lytTreeNext(record);
}

HOSTILE_EXPORT void getLYTVersion(char* text)
{
    if (acts.version != nullptr)
        acts.version(text);
}
