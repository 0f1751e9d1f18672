#include "sysinfo/word/EnabledLanguages.h"

#include "base/Words.h"
#include "sysinfo/frame/RegistryDump.h"
#include "sysinfo/frame/ReportFrame.h"

namespace
{

// From this version on the values are named by tags.
constexpr int firstWithTags = 16;

CString LanguageText(const RegistryValue& value)
{
    if (value.type != registryNumber)
        return TextOf(value);
    CString text;
    text.Format("%d", static_cast<int>(NumberOf(value)));
    return text;
}

} // namespace

int VersionNumberOf(const CString& currentVersion)
{
    const int dot = currentVersion.Find('.');
    return lytNumberOf(dot < 0 ? currentVersion : currentVersion.Left(dot));
}

CString EnabledLanguagesKey(int n)
{
    return OfficeKey(n, n < firstWithTags ? R"(Common\LanguageResources\EnabledLanguages\)"
                                          : R"(Common\LanguageResources\EnabledEditingLanguages\)");
}

CString EnabledLanguageLine(int n, const RegistryValue& value)
{
    CString language = value.name;
    if (n < firstWithTags)
        FindLanguageTag(lytNumberOf(value.name), language);
    return language + "=" + LanguageText(value);
}
