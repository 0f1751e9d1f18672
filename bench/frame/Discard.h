// For results that nobody needs: keeps the compiler from leaving out the work that leads to them.
#pragma once

template <class Value>
void Discard(const Value& value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}
