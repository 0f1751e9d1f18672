#include "GuardedCall.h"

#include <afx.h>

#include <stdexcept>

#include <windows.h>

extern "C"
{
    // Calls run(step). Gives 0, or the code of the exception that ended it.
    DWORD lytRunStep(void (*run)(void* step), void* step);
    // Where lytRunStep goes on after an exception; no function.
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

// The exceptions of this tool chain are no errors in the system's sense, nor are those for a debugger.
bool IsToBeCaught(DWORD code)
{
    constexpr DWORD errors = 0xC0000000;
    return (code & errors) == errors && code != EXCEPTION_STACK_OVERFLOW;
}

} // namespace

EXCEPTION_DISPOSITION lytHandleStep(EXCEPTION_RECORD* record, void* frame, CONTEXT* context,
                                    DISPATCHER_CONTEXT* dispatcher)
{
    constexpr DWORD unwinding = 0x66; // the four flags that stand for it
    if ((record->ExceptionFlags & unwinding) == 0 && IsToBeCaught(record->ExceptionCode))
        RtlUnwindEx(frame, reinterpret_cast<void*>(&lytStepRaised), record,
                    reinterpret_cast<void*>(static_cast<ULONG_PTR>(record->ExceptionCode)), context,
                    dispatcher->HistoryTable);
    return ExceptionContinueSearch;
}

void RunGuarded(void (*run)(void* step), void* step)
{
    const DWORD code = lytRunStep(run, step);
    if (code == 0)
        return;
    CString message;
    message.Format("A partner library failed with exception 0x%08lX.", code);
    throw std::runtime_error(message.GetString());
}
