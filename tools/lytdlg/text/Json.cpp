#include "lytdlg/text/Json.h"

#include <array>
#include <cstdio>

namespace lytdlg
{

namespace
{

// Of a control character that JSON allows in a text.
std::string EscapeOf(char ch)
{
    std::array<char, 7> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(ch)));
    return escape.data();
}

} // namespace

void PrintJson(const Json& json)
{
    const std::string text = json.dump(2, ' ', false, Json::error_handler_t::replace);
    std::string printed;
    for (size_t place = 0; place < text.size(); ++place)
    {
        const bool isSecondRange = text[place] == '\xC2' && static_cast<unsigned char>(text[place + 1]) < 0xA0U;
        if (isSecondRange || text[place] == '\x7F')
            printed += EscapeOf(text[isSecondRange ? ++place : place]);
        else
            printed += text[place];
    }
    std::puts(printed.c_str());
}

} // namespace lytdlg
