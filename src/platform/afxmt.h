// Locks, as far as programs with one thread need them: the objects that the library guards.
#pragma once

class CCriticalSection
{
};
