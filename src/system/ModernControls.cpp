#include "system/ModernControls.h"

#include <afxstat_.h>

namespace
{

// The activation context of the module's manifest, made once.
class ModuleManifest
{
public:
    ModuleManifest()
    {
        ACTCTXA request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        request.hModule = AfxGetResourceHandle();
        request.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
        m_handle = ::CreateActCtxA(&request);
    }
    ModuleManifest(const ModuleManifest&) = delete;
    ModuleManifest& operator=(const ModuleManifest&) = delete;
    ~ModuleManifest()
    {
        if (IsThere())
            ::ReleaseActCtx(m_handle);
    }

    bool IsThere() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Handle() const { return m_handle; }

private:
    HANDLE m_handle;
};

const ModuleManifest& Manifest()
{
    static const ModuleManifest manifest;
    return manifest;
}

} // namespace

ModernControls::ModernControls()
{
    m_active = Manifest().IsThere() && ::ActivateActCtx(Manifest().Handle(), &m_cookie);
}

ModernControls::~ModernControls()
{
    if (m_active)
        ::DeactivateActCtx(0, m_cookie);
}
