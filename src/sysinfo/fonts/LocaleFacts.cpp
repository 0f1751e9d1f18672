#include "sysinfo/fonts/Locale.h"

#include "sysinfo/frame/FactHandles.h"
#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/Report.h"

namespace
{

CString LocaleText(unsigned locale, unsigned type)
{
    const int size = GetLocaleInfoA(locale, type, nullptr, 0);
    if (size <= 0)
        return "";
    CString text;
    GetLocaleInfoA(locale, type, text.GetBuffer(size), size);
    text.ReleaseBuffer();
    return text;
}

IsGroupInstalled FindGroupTest()
{
    constexpr DWORD installed = 1;
    auto* const isValid = FindSystemFunction<BOOL WINAPI(DWORD, DWORD)>("Kernel32.dll", "IsValidLanguageGroup");
    if (isValid == nullptr)
        return {};
    return [isValid](unsigned group) { return isValid(group, installed) != FALSE; };
}

} // namespace

void lytProbeLocale()
{
    CStringList lines;
    AddLocaleLines(LocaleText, lines);
    AddLanguageGroupLines(FindGroupTest(), lines);
    AddReportLines(lines);
}
