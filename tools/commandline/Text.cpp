#include "commandline/Text.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string_view>
#include <vector>

namespace commandline
{

namespace
{

std::string Convert(const std::string& text, UINT from, UINT to)
{
    if (text.empty())
        return text;
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<size_t>(MultiByteToWideChar(from, 0, text.data(), length, wide.data(), length)));
    const int wideLength = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(to, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(to, 0, wide.data(), wideLength, result.data(), size, nullptr, nullptr);
    return result;
}

constexpr const char* replacement = "\xEF\xBF\xBD";

// Also a byte that is not UTF-8, and the two last characters of the first plane, which no file format has a place for.
bool IsControl(const std::string& character)
{
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return first < 0x20U || first >= 0x7FU;
    const bool isSecondRange = first == 0xC2U && static_cast<unsigned char>(character[1]) < 0xA0U;
    return isSecondRange || character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF";
}

// A byte that is not UTF-8 counts as one.
std::vector<std::string> CharactersOf(const std::string& utf8)
{
    std::vector<std::string> characters;
    for (size_t place = 0; place < utf8.size(); place += characters.back().size())
        characters.push_back(utf8.substr(place, std::max<size_t>(1, LengthOfCharacter(utf8, place))));
    return characters;
}

struct Escape
{
    char character;
    char letter;
};
constexpr Escape escapes[] = {{'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'"', '"'}, {'\\', '\\'}};
constexpr std::string_view hexDigits = "0123456789ABCDEF";

// A character between quotes. A control character beyond ASCII has its number in its second byte.
std::string Escaped(const std::string& character)
{
    const auto* const known = std::ranges::find(escapes, character[0], &Escape::character);
    if (known != std::end(escapes))
        return {'\\', known->letter};
    if (!IsControl(character) || character.size() > 2)
        return character;
    const auto number = static_cast<unsigned char>(character.back());
    return {'\\', 'x', hexDigits[number >> 4U], hexDigits[number & 15U]};
}

// What an escape means; the place moves to its last character. A backslash before anything else is left out.
std::string TakeEscape(const std::string& line, size_t& place)
{
    const char letter = line[++place];
    if (letter == 'x' && place + 2 < line.size())
    {
        const size_t high = hexDigits.find(line[place + 1]);
        const size_t low = hexDigits.find(line[place + 2]);
        if (high < 16 && low < 16)
        {
            place += 2;
            const auto number = static_cast<char>(high * 16 + low);
            return high < 8 ? std::string{number} : std::string{'\xC2', number};
        }
    }
    const auto* const known = std::ranges::find(escapes, letter, &Escape::letter);
    return {known != std::end(escapes) ? known->character : letter};
}

bool IsUtf8(const std::string& text)
{
    for (size_t place = 0; place < text.size();)
    {
        const size_t length = LengthOfCharacter(text, place);
        if (length == 0)
            return false;
        place += length;
    }
    return true;
}

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

std::string ToUtf8(const std::string& ansi)
{
    return Convert(ansi, CP_ACP, CP_UTF8);
}

std::string ToAnsi(const std::string& utf8)
{
    return Convert(utf8, CP_UTF8, CP_ACP);
}

std::string AsUtf8(const std::string& text)
{
    return IsUtf8(text) ? text : ToUtf8(text);
}

std::string AsAnsi(const std::string& text)
{
    return IsUtf8(text) ? ToAnsi(text) : text;
}

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();)
    {
        const size_t end = std::min(text.find('\n', start), text.size());
        const size_t length = end - start;
        lines.push_back(text.substr(start, length > 0 && text[end - 1] == '\r' ? length - 1 : length));
        start = end + 1;
    }
    return lines;
}

size_t LengthOfCharacter(const std::string& utf8, size_t place)
{
    const auto byteAt = [&](size_t at) { return at < utf8.size() ? static_cast<unsigned char>(utf8[at]) : 0U; };
    const unsigned first = byteAt(place);
    const size_t length = first < 0x80U ? 1U : first < 0xC2U ? 0U : first < 0xE0U ? 2U : first < 0xF0U ? 3U : 4U;
    for (size_t at = place + 1; at < place + length; ++at)
    {
        if ((byteAt(at) & 0xC0U) != 0x80U)
            return 0;
    }
    const unsigned second = byteAt(place + 1);
    const bool isTooLong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool isNone = (first == 0xEDU && second >= 0xA0U) || (first == 0xF4U && second >= 0x90U) || first > 0xF4U;
    return isTooLong || isNone ? 0 : length;
}

std::string Printable(const std::string& utf8)
{
    std::string printable;
    for (const std::string& character : CharactersOf(utf8))
    {
        if (character == "\n" || character == "\r")
            printable += ' ';
        else
            printable += character == "\t" || !IsControl(character) ? character : replacement;
    }
    return printable;
}

std::string Shown(const std::string& ansi)
{
    return Printable(ToUtf8(ansi));
}

std::string Quoted(const std::string& utf8)
{
    std::string quoted = "\"";
    for (const std::string& character : CharactersOf(utf8))
        quoted += Escaped(character);
    return quoted + '"';
}

std::optional<std::string> TakeQuoted(const std::string& line, size_t& place)
{
    std::string text;
    while (++place < line.size())
    {
        if (line[place] == '"')
        {
            ++place;
            return text;
        }
        const bool isEscape = line[place] == '\\' && place + 1 < line.size();
        text += isEscape ? TakeEscape(line, place) : line.substr(place, 1);
    }
    return std::nullopt;
}

void PrintLine(const std::string& utf8)
{
    std::printf("%s\n", Printable(utf8).c_str());
}

void PrintText(const std::string& name, const std::string& ansi)
{
    PrintLine(name + " = " + Quoted(ToUtf8(ansi)));
}

void PrintNumber(const std::string& name, int value, const std::string& meaning)
{
    std::printf("%s = %d%s\n", name.c_str(), value, meaning.empty() ? "" : (" (" + meaning + ")").c_str());
}

std::string FromMarkedUnicode(const std::string& bytes)
{
    if (bytes.starts_with("\xFF\xFE"))
        return FromUtf16(std::string_view(bytes).substr(2), 0);
    if (bytes.starts_with("\xFE\xFF"))
        return FromUtf16(std::string_view(bytes).substr(2), 1);
    return bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : bytes;
}

} // namespace commandline
