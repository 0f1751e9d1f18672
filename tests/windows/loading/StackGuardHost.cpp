// Is protected by the library's stack guard, and shows it, runs over a buffer or does not.
#include "runtime/LibraryEntry.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

extern "C" uintptr_t __stack_chk_guard; // NOLINT(bugprone-reserved-identifier): the compiler's name

namespace
{

constexpr int bufferSize = 16;

__attribute__((noinline)) void Fill(volatile char* target, int count)
{
    for (int index = 0; index < count; ++index)
        target[index] = 'x';
}

__attribute__((noinline)) void FillBuffer(int count)
{
    char buffer[bufferSize];
    Fill(buffer, count);
}

} // namespace

// Seeds the guard itself, so it must not look at it.
__attribute__((no_stack_protector)) int main(int count, char** arguments)
{
    SeedStackGuard();
    const char* const act = count > 1 ? arguments[1] : "";
    if (std::strcmp(act, "show") == 0)
    {
        std::printf("%016llx", static_cast<unsigned long long>(__stack_chk_guard));
        return 0;
    }
    constexpr int overrun = 16;
    FillBuffer(std::strcmp(act, "overrun") == 0 ? bufferSize + overrun : bufferSize);
    std::printf("returned");
    return 0;
}
