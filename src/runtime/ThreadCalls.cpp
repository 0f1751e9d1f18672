// The C++ runtime keeps its exceptions in flight by thread and guards its few shared structures, all through the calls
// below. The toolchain's thread library serves them too, but keeps a thread-local slot, handles and a handler
// for the life of the process, so a host that loads and unloads this library ran out of slots. Here a slot comes with
// its clean-up, and nothing else is taken.
//
// The runtime asks for one slot, when the first exception is raised, and ends the process if it gets none. So the slot
// is taken while the library is being loaded, which may still be refused.
//
// These are all the calls that the runtime makes. One that was missing would bring the thread library back with its
// own definitions, and the link would fail.
//
// Without it about a thousand loads use up the slots of the process: leave this source out of the target, and its calls out
// of the entry, and run `ctest --preset windows -R unload-tests`.
#include "runtime/LibraryEntry.h"

#include <windows.h>

#include <cerrno>

#include <pthread.h>

namespace
{

// One lock serves for all: each is held for a few instructions, and never two at a time. `once` is another, since what
// is done once may lock.
SRWLOCK sharedLock = SRWLOCK_INIT;
CONDITION_VARIABLE sharedCondition = CONDITION_VARIABLE_INIT;
SRWLOCK onceLock = SRWLOCK_INIT;

DWORD slot = TLS_OUT_OF_INDEXES;
// A thread-local slot has no clean-up: what other threads keep in it is lost when they end.
bool isFiberLocal = false;
void (*destroyValue)(void* value) = nullptr; // null until the runtime has asked for the slot

void WINAPI DestroyValue(void* value)
{
    if (value != nullptr && destroyValue != nullptr)
        destroyValue(value);
}

} // namespace

bool PrepareThreadCalls()
{
    slot = FlsAlloc(DestroyValue);
    isFiberLocal = slot != FLS_OUT_OF_INDEXES;
    if (!isFiberLocal)
        slot = TlsAlloc();
    return slot != TLS_OUT_OF_INDEXES;
}

void ReleaseThreadCalls()
{
    if (isFiberLocal)
    {
        // Runs the clean-up for the values of all threads.
        FlsFree(slot);
        return;
    }
    DestroyValue(TlsGetValue(slot));
    TlsFree(slot);
}

extern "C"
{
    int pthread_once(pthread_once_t* control, void (*initialise)())
    {
        AcquireSRWLockExclusive(&onceLock);
        if (*control == PTHREAD_ONCE_INIT)
        {
            initialise();
            *control = PTHREAD_ONCE_INIT + 1;
        }
        ReleaseSRWLockExclusive(&onceLock);
        return 0;
    }

    int pthread_key_create(pthread_key_t* key, void (*destroy)(void*))
    {
        if (destroyValue != nullptr)
            return EAGAIN;
        destroyValue = destroy;
        *key = slot;
        return 0;
    }

    // Called whenever an exception passes, which must leave the host's last error alone.
    void* pthread_getspecific(pthread_key_t key)
    {
        const DWORD lastError = GetLastError();
        void* const value = isFiberLocal ? FlsGetValue(key) : TlsGetValue(key);
        SetLastError(lastError);
        return value;
    }

    int pthread_setspecific(pthread_key_t key, const void* value)
    {
        // The platform only returns the value.
        auto* const given = const_cast<void*>(value);
        return (isFiberLocal ? FlsSetValue(key, given) : TlsSetValue(key, given)) != FALSE ? 0 : ENOMEM;
    }

    int pthread_mutex_init(pthread_mutex_t* /*mutex*/, const pthread_mutexattr_t* /*attributes*/)
    {
        return 0;
    }

    int pthread_mutex_destroy(pthread_mutex_t* /*mutex*/)
    {
        return 0;
    }

    int pthread_mutex_lock(pthread_mutex_t* /*mutex*/)
    {
        AcquireSRWLockExclusive(&sharedLock);
        return 0;
    }

    int pthread_mutex_unlock(pthread_mutex_t* /*mutex*/)
    {
        ReleaseSRWLockExclusive(&sharedLock);
        return 0;
    }

    int pthread_cond_wait(pthread_cond_t* /*condition*/, pthread_mutex_t* /*mutex*/)
    {
        SleepConditionVariableSRW(&sharedCondition, &sharedLock, INFINITE, 0);
        return 0;
    }

    int pthread_cond_broadcast(pthread_cond_t* /*condition*/)
    {
        WakeAllConditionVariable(&sharedCondition);
        return 0;
    }
}
