#include "lytdlg/text/Uri.h"

#include <cctype>

namespace lytdlg
{

namespace
{

constexpr std::string_view uriDigits = "0123456789ABCDEF";
constexpr std::string_view fileScheme = "file://";

bool HasDrive(const std::string& path, size_t place)
{
    return path.size() > place + 1 && path[place + 1] == ':';
}

std::string WithoutNumbers(const std::string& text)
{
    std::string plain;
    for (size_t place = 0; place < text.size(); ++place)
    {
        const bool isNumber = text[place] == '%' && place + 2 < text.size() &&
                              std::isxdigit(static_cast<unsigned char>(text[place + 1])) != 0 &&
                              std::isxdigit(static_cast<unsigned char>(text[place + 2])) != 0;
        plain += isNumber ? static_cast<char>(std::stoi(text.substr(place + 1, 2), nullptr, 16)) : text[place];
        place += isNumber ? 2 : 0;
    }
    return plain;
}

} // namespace

std::string UriOf(const std::string& path)
{
    constexpr std::string_view plain = "-._~/:";
    std::string uri;
    for (const char ch : path)
    {
        const auto byte = static_cast<unsigned char>(ch);
        if (ch == '\\')
            uri += '/';
        else if ((byte < 0x80 && std::isalnum(byte) != 0) || plain.find(ch) != std::string_view::npos)
            uri += ch;
        else
            uri += {'%', uriDigits[byte >> 4U], uriDigits[byte & 15U]};
    }
    return uri.starts_with('/') ? std::string(fileScheme) + uri : HasDrive(uri, 0) ? "file:///" + uri : uri;
}

std::string PathOfUri(const std::string& uri)
{
    if (!uri.starts_with(fileScheme))
        return uri;
    const std::string path = WithoutNumbers(uri.substr(fileScheme.size()));
    // Before a drive the name begins without a slash; a name of another computer has two.
    if (path.starts_with('/'))
        return HasDrive(path, 1) ? path.substr(1) : path;
    return path.starts_with("localhost/") ? path.substr(path.find('/')) : "//" + path;
}

} // namespace lytdlg
