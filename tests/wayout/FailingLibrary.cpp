// A data library whose functions break off: some always, some after a while.
#include "lytdata.h"

#include <cstdio>
#include <new>
#include <stdexcept>

#define FAILING_EXPORT extern "C" __declspec(dllexport)

namespace
{

int delivered = 0;

int PutItem(char* display, int size, char* value, int valueSize)
{
    std::snprintf(display, static_cast<size_t>(size), "item %d", delivered);
    std::snprintf(value, static_cast<size_t>(valueSize), "%d", delivered);
    return ++delivered <= 3 ? 1 : 0;
}

} // namespace

FAILING_EXPORT lytDataText Echo;
FAILING_EXPORT lytDataText Raise;
FAILING_EXPORT lytDataText RaiseNumber;
FAILING_EXPORT lytDataText Exhaust;
FAILING_EXPORT lytDataStart Open;
FAILING_EXPORT lytDataStart OpenRaises;
FAILING_EXPORT lytDataNext Next;
FAILING_EXPORT lytDataNext NextRaises;

int Echo(const char* parameter, char* text, int size)
{
    std::snprintf(text, static_cast<size_t>(size), "<%s>", parameter);
    return 1;
}

int Raise(const char*, char*, int)
{
    throw std::runtime_error("the library failed");
}

int RaiseNumber(const char*, char*, int)
{
    throw 7;
}

int Exhaust(const char*, char*, int)
{
    throw std::bad_alloc();
}

void Open(const char*)
{
    delivered = 0;
}

void OpenRaises(const char*)
{
    throw std::runtime_error("the list cannot be opened");
}

int Next(char* display, int size, char* value, int valueSize)
{
    return PutItem(display, size, value, valueSize);
}

// After the first two items.
int NextRaises(char* display, int size, char* value, int valueSize)
{
    if (delivered == 2)
        throw std::bad_alloc();
    return PutItem(display, size, value, valueSize);
}
