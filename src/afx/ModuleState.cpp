#include "afxstat_.h"

namespace
{

AFX_MODULE_STATE moduleState;
AFX_MODULE_STATE* currentState = nullptr;

} // namespace

AFX_MODULE_STATE* AfxGetStaticModuleState()
{
    return &moduleState;
}

AFX_MODULE_STATE* AfxGetModuleState()
{
    return currentState != nullptr ? currentState : &moduleState;
}

AFX_MAINTAIN_STATE::AFX_MAINTAIN_STATE(AFX_MODULE_STATE* state) : m_previous(currentState)
{
    currentState = state;
}

AFX_MAINTAIN_STATE::~AFX_MAINTAIN_STATE()
{
    currentState = m_previous;
}

HINSTANCE AfxGetInstanceHandle()
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AfxGetResourceHandle()
{
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}
