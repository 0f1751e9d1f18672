#include "commandline/Unicode.h"

#include <cstdint>
#include <string_view>

namespace commandline
{

namespace
{

void AppendUtf8(std::string& text, uint32_t letter)
{
    constexpr uint32_t lead[] = {0x00, 0xC0, 0xE0, 0xF0};
    const int following = letter < 0x80 ? 0 : letter < 0x800 ? 1 : letter < 0x10000 ? 2 : 3;
    text += static_cast<char>(lead[following] | letter >> (6 * following));
    for (int left = following - 1; left >= 0; --left)
        text += static_cast<char>(0x80U | (letter >> (6 * left) & 0x3FU));
}

// Numbers of two bytes, the byte at `low` of each being the lower one.
std::string FromUtf16(std::string_view bytes, size_t low)
{
    std::string text;
    uint32_t high = 0;
    for (size_t place = 0; place + 1 < bytes.size(); place += 2)
    {
        const uint32_t unit = static_cast<unsigned char>(bytes[place + low]) |
                              static_cast<uint32_t>(static_cast<unsigned char>(bytes[place + 1 - low])) << 8U;
        const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
        const bool isLow = unit >= 0xDC00 && unit < 0xE000;
        if (!isHigh)
            AppendUtf8(text, isLow ? 0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00) : unit);
        high = unit;
    }
    return text;
}

} // namespace

std::string FromMarkedUnicode(const std::string& bytes)
{
    if (bytes.starts_with("\xFF\xFE"))
        return FromUtf16(std::string_view(bytes).substr(2), 0);
    if (bytes.starts_with("\xFE\xFF"))
        return FromUtf16(std::string_view(bytes).substr(2), 1);
    return bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : bytes;
}

} // namespace commandline
