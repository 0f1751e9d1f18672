// Which module's resources the class library looks at. A host calls the library from its own module, so each exported
// call switches to this module's state and back.
#pragma once

#include <windows.h>

struct AFX_MODULE_STATE
{
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
};

// The state of the module that this code is linked into.
AFX_MODULE_STATE* AfxGetStaticModuleState();
// The state in force; the module's own outside any call.
AFX_MODULE_STATE* AfxGetModuleState();

// Switches the state for its own lifetime.
class AFX_MAINTAIN_STATE
{
public:
    explicit AFX_MAINTAIN_STATE(AFX_MODULE_STATE* state);
    AFX_MAINTAIN_STATE(const AFX_MAINTAIN_STATE&) = delete;
    AFX_MAINTAIN_STATE& operator=(const AFX_MAINTAIN_STATE&) = delete;
    ~AFX_MAINTAIN_STATE();

private:
    AFX_MODULE_STATE* m_previous; // outlives every call
};

HINSTANCE AfxGetInstanceHandle();
HINSTANCE AfxGetResourceHandle();
