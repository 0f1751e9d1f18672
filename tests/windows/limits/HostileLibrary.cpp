#include "HostileLibrary.h"

namespace
{

HostileActs acts;

} // namespace

extern "C" HostileActs* Acts()
{
    return &acts;
}

extern "C" int Text(const char* parameter, char* text, int size)
{
    return acts.text != nullptr ? acts.text(parameter, text, size) : 0;
}

extern "C" void Start(const char* parameter)
{
    if (acts.start != nullptr)
        acts.start(parameter);
}

extern "C" int Next(char* display, int size, char* value, int valueSize)
{
    return acts.next != nullptr ? acts.next(display, size, value, valueSize) : 0;
}

extern "C" int32_t lytTreeStart(const char* selection)
{
    return acts.treeStart != nullptr ? acts.treeStart(selection) : 1;
}

extern "C" int32_t lytTreeNext(lytTreeRecord* record)
{
    return acts.treeNext != nullptr ? acts.treeNext(record) : 0;
}

extern "C" int32_t lytParaTreeStart(const char* selection)
{
    return lytTreeStart(selection);
}

extern "C" int32_t lytParaTreeNext(lytTreeRecord* record)
{
    return lytTreeNext(record);
}

extern "C" void getLYTVersion(char* text)
{
    if (acts.version != nullptr)
        acts.version(text);
}
