#include "sysinfo/fonts/Locale.h"

namespace
{

constexpr unsigned systemLocale = 2048;
constexpr unsigned userLocale = 1024;

// Some labels appear twice, with different values: readers know them by their place.
constexpr struct
{
    unsigned locale;
    unsigned type;
    const char* label;
} localeLines[] = {{systemLocale, 4100, "LOCALE.SYSTEM.ANSICODEPAGE        = "},
                   {systemLocale, 11, "LOCALE.SYSTEM.CODEPAGE            = "},
                   {userLocale, 4100, "LOCALE.USER.ANSICODEPAGE          = "},
                   {userLocale, 11, "LOCALE.USER.CODEPAGE              = "},
                   {userLocale, 2, "LOCALE.USER.LANGUAGE              = "},
                   {userLocale, 5, "LOCALE.USER.COUNTRY (region code) = "},
                   {userLocale, 10, "LOCALE.USER.COUNTRY               = "},
                   {userLocale, 4114, "LOCALE.USER.EBCDICCODEPAGE        = "},
                   {userLocale, 1, "LOCALE.USER.LANGUAGE              = "},
                   {userLocale, 7, "LOCALE.USER.SABBREVCTRY           = "},
                   {userLocale, 6, "LOCALE.USER.COUNTRY               = "},
                   {userLocale, 4098, "LOCALE.USER.ENGCOUNTRY            = "},
                   {userLocale, 4097, "LOCALE.USER.ENGLANGUAGE           = "},
                   {userLocale, 90, "LOCALE.USER.ISO3166CTRY           = "},
                   {userLocale, 89, "LOCALE.USER.ISO639LANG            = "},
                   {userLocale, 8, "LOCALE.USER.NATIVECTRY            = "},
                   {userLocale, 4, "LOCALE.USER.NATIVELANG            = "}};

// The platform numbers the groups from 1 in this order.
constexpr const char* groupNames[] = {"WESTERN_EUROPE",
                                      "CENTRAL_EUROPE",
                                      "BALTIC",
                                      "GREEK",
                                      "CYRILLIC",
                                      "TURKISH",
                                      "JAPANESE",
                                      "KOREAN",
                                      "TRADITIONAL_CHINESE",
                                      "SIMPLIFIED_CHINESE",
                                      "THAI",
                                      "HEBREW",
                                      "ARABIC",
                                      "VIETNAMESE",
                                      "INDIC",
                                      "GEORGIAN",
                                      "ARMENIAN"};

} // namespace

void AddLocaleLines(const ReadLocaleText& readText, CStringList& lines)
{
    for (const auto& line : localeLines)
        lines.AddTail(line.label + readText(line.locale, line.type));
}

void AddLanguageGroupLines(const IsGroupInstalled& isInstalled, CStringList& lines)
{
    if (!isInstalled)
        return;

    lines.AddTail("Windows installed languages:");
    unsigned group = 0;
    for (const char* name : groupNames)
    {
        ++group;
        CString line;
        if (isInstalled(group))
            line.Format("Language %s is installed in Windows", name);
        else
            line.Format("Language %s not installed in Windows, see ZVK note 939928", name);
        lines.AddTail(line);
    }
}
