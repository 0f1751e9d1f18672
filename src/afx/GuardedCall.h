// Calls code of another module, which may have been made by any tool chain.
#pragma once

// Runs the step. What it raises that is no exception of this tool chain, such as an access violation or an exception of
// another compiler's runtime, is raised as a std::runtime_error; it would otherwise pass all handlers and end the
// process. The overflow of the stack passes, since there is no room to go on.
//
// No object of the step itself may need a destructor: nothing runs between the place where it was raised and here.
void RunGuarded(void (*run)(void* step), void* step);

template <class STEP>
void GuardedCall(STEP step)
{
    RunGuarded([](void* given) { (*static_cast<STEP*>(given))(); }, &step);
}
