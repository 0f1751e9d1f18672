#include "ReportTest.h"

#include "support/ImportHook.h"

#include <algorithm>
#include <cstring>

namespace
{

// What the platform was asked for.
std::vector<LOGFONTW> asked;

int WINAPI NoteFont(HDC /*context*/, LOGFONTW* font, FONTENUMPROCW /*enumerate*/, LPARAM /*data*/, DWORD flags)
{
    EXPECT_EQ(flags, 0U);
    asked.push_back(*font);
    return 1;
}

class Fonts : public ReportTest
{
};

class Locale : public ReportTest
{
};

} // namespace

TEST_F(Fonts, AskForTheFirst31CharactersOfANameInAnyCharacterSet)
{
    const ImportHook hook(GetModuleHandleA("lyt64"), "EnumFontFamiliesExW", NoteFont);
    const std::string name = "0123456789012345678901234567890";
    for (const char* more : {"", "x", "xy", "xyz"})
    {
        SCOPED_TRACE(more);
        asked.clear();
        WriteIni("[FONTS]\r\nText=" + name + more + "\r\n");
        Report();
        ASSERT_EQ(asked.size(), 1U);
        LOGFONTW wanted = {};
        wanted.lfCharSet = DEFAULT_CHARSET;
        std::copy(name.begin(), name.end(), wanted.lfFaceName);
        EXPECT_EQ(std::memcmp(&asked.front(), &wanted, sizeof wanted), 0);
    }
}

TEST_F(Locale, ShowsWhatThePlatformTells)
{
    const auto text = [](LCID locale, LCTYPE type)
    {
        char value[128] = "";
        GetLocaleInfoA(locale, type, value, sizeof value);
        return std::string(value);
    };
    const Texts lines = Report();
    const size_t first = FindLine(lines, "LOCALE.");
    ASSERT_LT(first + 17, lines.size());
    EXPECT_EQ(lines[first], "LOCALE.SYSTEM.ANSICODEPAGE        = " + text(LOCALE_SYSTEM_DEFAULT, 4100));
    EXPECT_EQ(lines[first + 10], "LOCALE.USER.COUNTRY               = " + text(LOCALE_USER_DEFAULT, LOCALE_SCOUNTRY));
    EXPECT_EQ(lines[first + 17], "Windows installed languages:");
}
