#include "sysinfo/fonts/Fonts.h"

#include "environment/ClytEnvironment.h"
#include "environment/ClytINISection.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/Report.h"

#include <afxwin.h>

#include "system/CallbackFailure.h"

#include <string>
#include <utility>

namespace
{

// Fetched once per process and kept until the library is unloaded.
HDC ScreenContext()
{
    static const CClientDC screen(nullptr);
    return screen.m_hDC;
}

std::wstring Wide(const CString& text)
{
    const int length = MultiByteToWideChar(CP_ACP, 0, text, text.GetLength(), nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text, text.GetLength(), wide.data(), length);
    return wide;
}

CString Narrow(const WCHAR* text, size_t room)
{
    const int wideLength = static_cast<int>(wcsnlen(text, room));
    const int length = WideCharToMultiByte(CP_ACP, 0, text, wideLength, nullptr, 0, nullptr, nullptr);
    CString narrow;
    WideCharToMultiByte(CP_ACP, 0, text, wideLength, narrow.GetBuffer(length), length, nullptr, nullptr);
    narrow.ReleaseBuffer(length);
    return narrow;
}

struct Enumeration
{
    std::vector<FontEntry> entries;
    CallbackFailure failure;
};

int CALLBACK KeepFont(const LOGFONTW* font, const TEXTMETRICW* /*metric*/, DWORD /*type*/, LPARAM target) noexcept
{
    // The platform passes the longer record, and the target comes back as it was handed in.
    const auto& record = *reinterpret_cast<const ENUMLOGFONTEXW*>(font);
    auto& enumeration = *reinterpret_cast<Enumeration*>(target);
    const auto keep = [&] {
        enumeration.entries.push_back({Narrow(record.elfFullName, LF_FULLFACESIZE), record.elfLogFont.lfCharSet});
    };
    return enumeration.failure.Run(keep) ? 1 : 0;
}

std::vector<FontEntry> EnumerateFonts(const CString& name)
{
    LOGFONTW wanted = {};
    wanted.lfCharSet = DEFAULT_CHARSET;
    Wide(name).copy(wanted.lfFaceName, LF_FACESIZE - 1);
    Enumeration enumeration;
    EnumFontFamiliesExW(ScreenContext(), &wanted, KeepFont, reinterpret_cast<LPARAM>(&enumeration), 0);
    enumeration.failure.Rethrow();
    return std::move(enumeration.entries);
}

} // namespace

void lytProbeFonts()
{
    const CString iniFile = lytEnvironment.GetIniFileName();
    ClytINISection section(iniFile, "FONTS");
    const bool isRead = section.Read();

    CStringList lines;
    AddFontLines(iniFile, isRead ? &section : nullptr, EnumerateFonts, lines);
    AddReportLines(lines);
}
