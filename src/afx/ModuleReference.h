// A reference to this module that its own code holds.
#pragma once

#include <windows.h>

// While one lives, a host that releases the module does not take away the code that is running. If the host's reference
// was the last, ours stays when the object dies, and the module with it: code cannot release itself, since it would
// return to where it no longer is. Such a reference is released by the next object that finds another holder. On a platform
// whose loader cannot be asked, every reference stays.
class ModuleReference
{
public:
    ModuleReference() noexcept;
    ModuleReference(const ModuleReference&) = delete;
    ModuleReference& operator=(const ModuleReference&) = delete;
    // NOLINTNEXTLINE(performance-trivially-destructible): only natively.
    ~ModuleReference();

    // Called while the module is being loaded, when no other thread changes the loader's records.
    static void Prepare(HMODULE module) noexcept;

private:
    // The loader's number of references to the module.
    using Counter = LONG() noexcept;

    bool IsLast() const noexcept { return m_counter == nullptr || m_counter() <= 1; }

    HMODULE m_module = nullptr;
    Counter* m_counter = nullptr; // null when none was seen to count
};
