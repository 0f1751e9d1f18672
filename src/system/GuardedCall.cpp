#include "system/GuardedCall.h"

#include "system/Unwound.h"

#include <stdexcept>
#include <string>

#include <windows.h>

extern "C"
{
    // Calls run(step). Gives 0, or the code of the exception that ended it, marked as raised. What the third argument
    // says is kept at the place `guardedWithin` of the function's frame, for the handler.
    ULONG64 lytRunStep(void (*run)(void* step), void* step, const UnwoundLink* within);
    // Where lytRunStep continues after an exception; no function.
    void lytStepRaised();

    EXCEPTION_DISPOSITION lytHandleStep(EXCEPTION_RECORD* record, void* frame, CONTEXT* context,
                                        DISPATCHER_CONTEXT* dispatcher);
}

// The compiler has no word for a handler of the system's exceptions, so the function that has one is written out.
asm(R"(
    .text
    .globl lytRunStep
    .def lytRunStep; .scl 2; .type 32; .endef
    .seh_proc lytRunStep
lytRunStep:
    subq $40, %rsp
    .seh_stackalloc 40
    .seh_endprologue
    .seh_handler lytHandleStep, @except
    movq %r8, 32(%rsp)
    movq %rcx, %rax
    movq %rdx, %rcx
    call *%rax
    xorl %eax, %eax
    .globl lytStepRaised
lytStepRaised:
    addq $40, %rsp
    ret
    .seh_endproc
)");

namespace
{

constexpr size_t guardedWithin = 32;
// Distinguishes a code from no exception: it may be any number, even 0.
constexpr ULONG64 raised = 1ULL << 32;

// What the system raises and handles itself, such as the text for a debugger, never comes as far as here.
bool IsToBeCaught(DWORD code)
{
    constexpr DWORD ownExceptions = 0x20474343; // one of three kinds, which the mask leaves out
    constexpr DWORD withoutKind = 0xF0FFFFFF;
    if ((code & withoutKind) == ownExceptions || code == EXCEPTION_STACK_OVERFLOW)
        return false;
    return code != EXCEPTION_BREAKPOINT || !::IsDebuggerPresent();
}

std::string HexOf(DWORD code)
{
    constexpr unsigned bitsOfDigit = 4;
    std::string digits(2 * sizeof code, '0');
    for (auto digit = digits.rbegin(); code != 0; code >>= bitsOfDigit)
        *digit++ = "0123456789ABCDEF"[code & 0xFU];
    return digits;
}

} // namespace

EXCEPTION_DISPOSITION lytHandleStep(EXCEPTION_RECORD* record, void* frame, CONTEXT* context,
                                    DISPATCHER_CONTEXT* dispatcher)
{
    constexpr DWORD unwinding = 0x66; // its four flags
    if ((record->ExceptionFlags & unwinding) != 0 || !IsToBeCaught(record->ExceptionCode))
        return ExceptionContinueSearch;
    UnwoundLink::DestroyWithin(*reinterpret_cast<UnwoundLink**>(static_cast<char*>(frame) + guardedWithin));
    RtlUnwindEx(frame, reinterpret_cast<void*>(&lytStepRaised), record,
                reinterpret_cast<void*>(raised | record->ExceptionCode), context, dispatcher->HistoryTable);
    return ExceptionContinueSearch;
}

void RunGuarded(void (*run)(void* step), void* step)
{
    const ULONG64 end = lytRunStep(run, step, UnwoundLink::Innermost());
    if (end == 0)
        return;
    throw std::runtime_error("exception 0x" + HexOf(static_cast<DWORD>(end)));
}
