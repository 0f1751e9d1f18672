// The toolchain's own guard asks the system for random bytes while the library is being loaded, and the system loads
// further libraries for that, inside the loader's lock. This one takes its place. Its sources are in the process and differ
// from load to load: an attacker who could read all of them is inside the process already.
//
// Without it the library is linked with the toolchain's, and loads further libraries: leave this source out of the
// target, and the call of SeedStackGuard, and run `ctest --preset windows -R load-tests`.
#include "runtime/LibraryEntry.h"

#include <windows.h>

#include <cstdint>
#include <initializer_list>

extern "C"
{
    extern uintptr_t __stack_chk_guard;   // NOLINT(bugprone-reserved-identifier): the compiler's names
    [[noreturn]] void __stack_chk_fail(); // NOLINT(bugprone-reserved-identifier): as above

    uintptr_t __stack_chk_guard = 0; // NOLINT(bugprone-reserved-identifier): as above

    // The stack cannot be trusted any more, so nothing else is run: neither handlers nor a message.
    void __stack_chk_fail() // NOLINT(bugprone-reserved-identifier): as above
    {
        constexpr unsigned stackGuardFailed = 2; // FAST_FAIL_STACK_COOKIE_CHECK_FAILURE
        asm volatile("int $0x29" : : "c"(stackGuardFailed));
        __builtin_unreachable();
    }
}

namespace
{

// Spreads each bit of the value over all bits of the result.
uint64_t Mixed(uint64_t value)
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31);
}

} // namespace

// Changes the guard while it runs, so it must not be checked against it on its way out.
__attribute__((no_stack_protector)) void SeedStackGuard()
{
    FILETIME clock = {};
    LARGE_INTEGER counter = {};
    GetSystemTimeAsFileTime(&clock);
    QueryPerformanceCounter(&counter);

    uint64_t seed = 0;
    for (const uint64_t source : {(static_cast<uint64_t>(clock.dwHighDateTime) << 32) | clock.dwLowDateTime,
                                  static_cast<uint64_t>(counter.QuadPart),
                                  (static_cast<uint64_t>(GetCurrentProcessId()) << 32) | GetCurrentThreadId(),
                                  static_cast<uint64_t>(reinterpret_cast<uintptr_t>(&clock)),
                                  static_cast<uint64_t>(reinterpret_cast<uintptr_t>(&SeedStackGuard))})
        seed = Mixed(seed + source);

    // The lowest byte is a NUL, which ends a text that continues into the guard.
    constexpr uint64_t lowestByte = 0xFF;
    __stack_chk_guard = static_cast<uintptr_t>(seed & ~lowestByte);
}
