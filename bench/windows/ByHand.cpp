#include "windows/ByHand.h"

#include <gtest/gtest.h>

namespace
{

LRESULT CALLBACK CancelWhenShown(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_ACTIVATE)
        PostMessageA(reinterpret_cast<HWND>(wParam), WM_COMMAND, IDCANCEL, 0);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Made once, as a program would.
HANDLE ModernContext()
{
    static const HANDLE context = []
    {
        ACTCTXA request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        request.hModule = GetModuleHandleA("lyt64.dll");
        request.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
        const HANDLE made = CreateActCtxA(&request);
        EXPECT_NE(made, INVALID_HANDLE_VALUE) << "no controls of version 6";
        return made;
    }();
    return context;
}

} // namespace

void ReadProfile(const char* section, const char* key, const std::string& fileName)
{
    char text[75];
    GetPrivateProfileStringA(section, key, "", text, sizeof text, fileName.c_str());
}

std::string TextsByHand::Read(const char* section, const char* key) const
{
    char text[75];
    GetPrivateProfileStringA("global", "Current Language", "", text, sizeof text, (m_folder + "\\lyt.ini").c_str());
    const std::string file = m_folder + "\\lang\\" + text + ".nls";
    GetPrivateProfileStringA(section, key, "no value present", text, sizeof text, file.c_str());
    return text;
}

void LookForCompanion()
{
    const UINT mode = SetErrorMode(SEM_FAILCRITICALERRORS);
    LoadLibraryA("lyt");
    SetErrorMode(mode);
}

void ProvideCompanion(const std::string& folder)
{
    char library[MAX_PATH] = "";
    GetModuleFileNameA(GetModuleHandleA("lyt64.dll"), library, sizeof library);
    CopyFileA(library, (folder + "\\lyt.dll").c_str(), FALSE);
    SetCurrentDirectoryA(folder.c_str());
}

ModernControlsByHand::ModernControlsByHand()
{
    ActivateActCtx(ModernContext(), &m_cookie);
}

ModernControlsByHand::~ModernControlsByHand()
{
    DeactivateActCtx(0, m_cookie);
}

CancelledDialogs::CancelledDialogs() : m_hook(SetWindowsHookExA(WH_CBT, CancelWhenShown, nullptr, GetCurrentThreadId()))
{
}

void RunDialogByHand(HMODULE library, int templateId, DLGPROC procedure, LPARAM parameter)
{
    const ModernControlsByHand controls;
    DialogBoxParamA(library, MAKEINTRESOURCEA(templateId), nullptr, procedure, parameter);
}
