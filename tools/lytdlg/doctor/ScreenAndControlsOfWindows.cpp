// What the dialogs need: the resolution of the screen, and the common controls that the manifest of the library asks for.
#include "environment/ErrorTable.h"
#include "lytdlg/doctor/Deployment.h"
#include "model/ClytScale.h"

#include <afxwin.h>

#include <algorithm>
#include <iterator>

namespace lytdlg
{

namespace
{

constexpr const char* aboutScreen = "screen";
constexpr const char* aboutControls = "controls";

// A word processor knows the resolution of its screen. To a program that does not, Windows always reports 96.
class AwareOfResolution
{
public:
    AwareOfResolution()
        : m_set(reinterpret_cast<SetContext*>(reinterpret_cast<void*>(
              ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "SetThreadDpiAwarenessContext"))))
    {
        constexpr LONG_PTR systemAware = -2;
        if (m_set != nullptr)
            m_before = m_set(reinterpret_cast<HANDLE>(systemAware));
    }
    AwareOfResolution(const AwareOfResolution&) = delete;
    AwareOfResolution& operator=(const AwareOfResolution&) = delete;
    ~AwareOfResolution()
    {
        if (m_before != nullptr)
            m_set(m_before);
    }

private:
    using SetContext = HANDLE WINAPI(HANDLE);

    SetContext* m_set;
    HANDLE m_before = nullptr;
};

void JudgeResolution(Diagnosis& diagnosis)
{
    const AwareOfResolution aware;
    const int pixelsPerInch = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
    const std::string told = std::to_string(pixelsPerInch) + " dots per inch";
    if (std::ranges::find(lytResolutions, pixelsPerInch, &ClytResolution::pixelsPerInch) != std::end(lytResolutions))
        diagnosis.Add(Verdict::Good, aboutScreen, {}, told);
    else
        diagnosis.Add(Verdict::Wrong, aboutScreen, {},
                      told + ", at which no dialog opens (" + lytError("Resolution") + ")",
                      "set the scale of the display to 100 or 125 per cent");
}

// The activation context of the manifest in the library's file, in force.
class ManifestOf
{
public:
    explicit ManifestOf(const std::filesystem::path& library)
    {
        const std::wstring file = std::filesystem::absolute(library).wstring();
        ACTCTXW request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
        request.lpSource = file.c_str();
        request.lpResourceName = MAKEINTRESOURCEW(2);
        m_context = ::CreateActCtxW(&request);
        m_isActive = m_context != INVALID_HANDLE_VALUE && ::ActivateActCtx(m_context, &m_cookie);
    }
    ManifestOf(const ManifestOf&) = delete;
    ManifestOf& operator=(const ManifestOf&) = delete;
    ~ManifestOf()
    {
        if (m_isActive)
            ::DeactivateActCtx(0, m_cookie);
        if (m_context != INVALID_HANDLE_VALUE)
            ::ReleaseActCtx(m_context);
    }

    // The platform finds the version that the manifest asks for. Without it there is no such context.
    bool RedirectsControls() const
    {
        ACTCTX_SECTION_KEYED_DATA found{};
        found.cbSize = sizeof found;
        return m_isActive && ::FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION,
                                                        L"comctl32.dll", &found) != FALSE;
    }

private:
    HANDLE m_context = INVALID_HANDLE_VALUE;
    ULONG_PTR m_cookie = 0;
    bool m_isActive = false;
};

void JudgeControls(const std::filesystem::path& library, Diagnosis& diagnosis)
{
    const ManifestOf manifest(library);
    if (manifest.RedirectsControls())
        diagnosis.Add(Verdict::Good, aboutControls, {}, "common controls version 6, as the library asks for them");
    else
        diagnosis.Add(Verdict::Warning, aboutControls, library,
                      "does not get common controls version 6, so that dialogs look like dialogs of older programs",
                      "copy lyt64.dll again; if that does not help, repair Windows, whose files for version 6 are "
                      "missing");
}

} // namespace

void JudgeScreen(const Deployment& deployment, Diagnosis& diagnosis)
{
    JudgeResolution(diagnosis);
    // Another library, or one that cannot be loaded, asks for no controls.
    if (!diagnosis.IsWrong("library") && !diagnosis.IsWrong("loading"))
        JudgeControls(deployment.library.chosen, diagnosis);
}

} // namespace lytdlg
