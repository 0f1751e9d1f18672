#include "system/ModernControls.h"

namespace
{

// The context that the loader made of the module's manifest, and owns; null without a manifest.
HANDLE ContextOfThisModule()
{
    static const char inThisModule = '\0';
    constexpr DWORD flags = QUERY_ACTCTX_FLAG_ACTCTX_IS_ADDRESS | QUERY_ACTCTX_FLAG_NO_ADDREF;
    ACTIVATION_CONTEXT_BASIC_INFORMATION information{};
    ::QueryActCtxW(flags, const_cast<char*>(&inThisModule), nullptr, ActivationContextBasicInformation, &information,
                   sizeof information, nullptr);
    return information.hActCtx;
}

} // namespace

ModernControls::ModernControls()
{
    const HANDLE context = ContextOfThisModule();
    m_active = context != nullptr && ::ActivateActCtx(context, &m_cookie) != FALSE;
}

ModernControls::~ModernControls()
{
    if (m_active)
        ::DeactivateActCtx(0, m_cookie);
}
