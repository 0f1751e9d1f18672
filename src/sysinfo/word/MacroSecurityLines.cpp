#include "sysinfo/word/MacroSecurity.h"

#include "sysinfo/frame/ReportFrame.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace
{

CString LevelText(unsigned level)
{
    static const char* const words[] = {" UNKNOWN", " LOW", " MIDDLE", " HIGH", " VERY HIGH"};
    CString text;
    text.Format("%u%s", level, words[level < std::size(words) ? level : 0]);
    return text;
}

bool IsSamePath(std::string_view left, std::string_view right)
{
    const auto lower = [](unsigned char ch) { return std::tolower(ch); };
    return std::ranges::equal(left, right, {}, lower, lower);
}

CString TrustText(const MacroSecurityFacts& facts)
{
    const bool isTrusted = std::ranges::any_of(
        facts.paths, [&](const CString& path)
        { return !path.IsEmpty() && IsSamePath(WithSeparator(path).GetString(), facts.installDirectory.GetString()); });
    return facts.installDirectory + (isTrusted ? " is a trusted location" : " is NO trusted location");
}

CString FixedWords(int n)
{
    switch (n)
    {
    case 6: return "N/A in Word 6.0";
    case 7: return "N/A in Word 7.0/95";
    case 8: return "N/A in Word 8.0/97";
    default: return UnsupportedVersionText();
    }
}

} // namespace

bool HasSecurityLevel(int n)
{
    return n >= 9 && n <= 11;
}

bool HasTrustedLocations(int n)
{
    return n >= 12 && n <= 99;
}

CString MacroSecurityKey(int n)
{
    if (HasSecurityLevel(n))
        return OfficeKey(n, R"(Word\Security)");
    if (HasTrustedLocations(n))
        return OfficeKey(n, R"(Word\Security\Trusted Locations)");
    return "";
}

CString MacroSecurityText(const MacroSecurityFacts& facts)
{
    const CString key = MacroSecurityKey(facts.n);
    if (key.IsEmpty())
        return FixedWords(facts.n);
    if (!facts.isKeyOpen)
        return CannotOpenText(key);
    return HasSecurityLevel(facts.n) ? LevelText(facts.level) : TrustText(facts);
}
