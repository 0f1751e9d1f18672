#include "sysinfo/word/WordDirectories.h"

#include "sysinfo/frame/ReportFrame.h"

namespace
{

constexpr auto value = RegistryPlace::Kind::Value;
constexpr auto subkey = RegistryPlace::Kind::Subkey;

constexpr const char* options6 = R"(Software\Microsoft\Word\6.0\Options)";
constexpr const char* options7 = R"(Software\Microsoft\Word\7.0\Options)";
constexpr const char* fileNew7 = R"(Software\Microsoft\Microsoft Office\95\FileNew)";
constexpr const char* fileNew8 = R"(Common\FileNew)";
constexpr const char* general = R"(Common\General)";
constexpr const char* options = R"(Word\Options)";

bool HasCommonLayout(int n)
{
    return n >= 9 && n <= 99;
}

} // namespace

std::optional<RegistryPlace> UserTemplatesPlace(int n)
{
    switch (n)
    {
    case 6: return RegistryPlace{options6, "USER-DOT-PATH", value};
    case 7: return RegistryPlace{fileNew7, "LocalTemplates", subkey};
    case 8: return RegistryPlace{OfficeKey(n, fileNew8), "LocalTemplates", subkey};
    default: break;
    }
    if (!HasCommonLayout(n))
        return {};
    return RegistryPlace{OfficeKey(n, general), "UserTemplates", value};
}

std::optional<RegistryPlace> WorkgroupTemplatesPlace(int n)
{
    switch (n)
    {
    case 6: return RegistryPlace{options6, "WORKGROUP-DOT-PATH", value};
    case 7: return RegistryPlace{fileNew7, "SharedTemplates", subkey};
    case 8: return RegistryPlace{OfficeKey(n, fileNew8), "SharedTemplates", subkey};
    default: break;
    }
    if (!HasCommonLayout(n))
        return {};
    return RegistryPlace{OfficeKey(n, general), "SharedTemplates", value};
}

std::optional<RegistryPlace> StartupPlace(int n)
{
    if (n == 6)
        return RegistryPlace{options6, "STARTUP-PATH", value};
    if (n == 7)
        return RegistryPlace{options7, "STARTUP-PATH", value};
    if (n == 8 || HasCommonLayout(n))
        return RegistryPlace{OfficeKey(n, options), "STARTUP-PATH", value};
    return {};
}
