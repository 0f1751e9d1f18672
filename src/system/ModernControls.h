// The manifest of this module, in force.
#pragma once

#include <windows.h>

// Common controls version 6, which the module's manifest asks for, while the object lives: the host's manifest may ask
// for nothing. The order of ends is the reverse of the order of starts, as the platform demands.
class ModernControls
{
public:
    ModernControls();
    ModernControls(const ModernControls&) = delete;
    ModernControls& operator=(const ModernControls&) = delete;
    ~ModernControls();

private:
    bool m_active;
    ULONG_PTR m_cookie = 0;
};
