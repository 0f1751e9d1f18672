// A data library that keeps to the letter of its contract and to nothing else.
#include "lytdata.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string>

#define NASTY_EXPORT extern "C" __declspec(dllexport)

namespace
{

// What the last start function was given, and the number of items delivered since.
std::string parameterSeen;
int delivered = 0;

void Put(char* buffer, const std::string& text)
{
    std::memcpy(buffer, text.c_str(), text.size() + 1);
}

int PutItem(char* display, char* value, const std::string& text)
{
    Put(display, text);
    Put(value, text + "-value");
    return 1;
}

} // namespace

NASTY_EXPORT lytDataStart Open;
NASTY_EXPORT lytDataStart OpenAgain;
NASTY_EXPORT lytDataNext NextNone;
NASTY_EXPORT lytDataNext NextFull;
NASTY_EXPORT lytDataNext NextLazy;
NASTY_EXPORT lytDataNext NextMany;
NASTY_EXPORT lytDataNext NextEcho;
NASTY_EXPORT lytDataNext NextThree;
NASTY_EXPORT lytDataText FullText;
NASTY_EXPORT lytDataText SilentText;
NASTY_EXPORT lytDataText EchoText;
NASTY_EXPORT lytDataNext NextFailing;
NASTY_EXPORT lytDataText FailingText;

void Open(const char* parameter)
{
    parameterSeen = parameter;
    delivered = 0;
}

// Keeps the parameter of the start before it.
void OpenAgain(const char*)
{
    delivered = 0;
}

// Nothing at all, and no word about it.
int NextNone(char*, int, char*, int)
{
    return 0;
}

// One item that fills all 256 bytes of both buffers, with no NUL anywhere.
int NextFull(char* display, int size, char* value, int valueSize)
{
    std::memset(display, 'D', static_cast<size_t>(size) + 1);
    std::memset(value, 'V', static_cast<size_t>(valueSize) + 1);
    return delivered++ < 1 ? 1 : 0;
}

// First leaves both empty buffers alone, then fills both, then leaves both, then leaves one of them alone.
int NextLazy(char* display, int, char* value, int)
{
    switch (delivered++)
    {
    case 0: return -1;
    case 1: return PutItem(display, value, "one");
    case 2: return 0x10000;
    case 3: Put(display, "two"); return 1;
    default: return 0;
    }
}

// As many items as the parameter says.
int NextMany(char* display, int, char* value, int)
{
    if (delivered >= std::atoi(parameterSeen.c_str()))
        return 0;
    return PutItem(display, value, "item " + std::to_string(delivered++));
}

// One item: the parameter and the two sizes.
int NextEcho(char* display, int size, char* value, int valueSize)
{
    if (delivered++ > 0)
        return 0;
    Put(display, "<" + parameterSeen + ">");
    Put(value, std::to_string(size) + "/" + std::to_string(valueSize));
    return 1;
}

int NextThree(char* display, int, char* value, int)
{
    static const char* const names[] = {"red", "green", "blue"};
    return delivered < 3 ? PutItem(display, value, names[delivered++]) : 0;
}

// Two items, and then an exception.
int NextFailing(char* display, int, char* value, int)
{
    if (delivered == 2)
        throw std::runtime_error("no third item");
    return PutItem(display, value, "item " + std::to_string(delivered++));
}

int FullText(const char*, char* text, int size)
{
    std::memset(text, 'T', static_cast<size_t>(size) + 1);
    return 0;
}

int SilentText(const char*, char*, int)
{
    return 1;
}

int EchoText(const char* parameter, char* text, int size)
{
    std::snprintf(text, static_cast<size_t>(size), "<%s> %d", parameter, size);
    return 0;
}

// Raises what the parameter says.
int FailingText(const char* parameter, char*, int)
{
    const std::string kind = parameter;
    if (kind == "number")
        throw 7;
    if (kind == "memory")
        throw std::bad_alloc();
    throw std::runtime_error("out of order");
}
