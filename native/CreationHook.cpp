#include "CreationHook.h"

namespace
{

HOOKPROC hook = nullptr;

} // namespace

bool platform::IsCreationRefused(CREATESTRUCTA create)
{
    CBT_CREATEWNDA window{&create, nullptr};
    return hook != nullptr && hook(HCBT_CREATEWND, 0, reinterpret_cast<LPARAM>(&window)) != 0;
}

HHOOK SetWindowsHookExA(int /*kind*/, HOOKPROC procedure, HINSTANCE /*instance*/, DWORD /*thread*/)
{
    hook = procedure;
    return reinterpret_cast<HHOOK>(procedure);
}

BOOL UnhookWindowsHookEx(HHOOK /*hook*/)
{
    hook = nullptr;
    return TRUE;
}
