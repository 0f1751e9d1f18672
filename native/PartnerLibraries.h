// Libraries that the platform would load from files: a table of library, function and pointer, filled by the program.
#pragma once

#include <windows.h>

namespace platform
{

// From now on the library is there (its name is compared without case, folder and ".dll"), and has the function.
void AddFunctionPointer(const char* library, const char* function, void* pointer);
template <class FUNCTION>
void AddFunction(const char* library, const char* name, FUNCTION* function)
{
    AddFunctionPointer(library, name, reinterpret_cast<void*>(function));
}
// The library is there, perhaps without a function; or is gone.
void AddLibrary(const char* library);
void RemoveLibrary(const char* library);

} // namespace platform
