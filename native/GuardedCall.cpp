#include "system/GuardedCall.h"

// There is one tool chain.
void RunGuarded(void (*run)(void* step), void* step)
{
    run(step);
}
