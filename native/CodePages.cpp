// Texts between code page 1252, UTF-8 and wide characters, as far as a character fits into two bytes there.
#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace
{

constexpr unsigned firstOfTable = 0x80;

// What code page 1252 has from 0x80 to 0x9F; elsewhere its bytes are the characters.
constexpr wchar_t table[] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
                             0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                             0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

std::wstring WideOfAnsi(std::string_view text)
{
    std::wstring wide;
    for (const char ch : text)
    {
        const unsigned code = static_cast<unsigned char>(ch);
        const bool isInTable = code >= firstOfTable && code < firstOfTable + std::size(table);
        wide += isInTable ? table[code - firstOfTable] : static_cast<wchar_t>(code);
    }
    return wide;
}

std::string AnsiOfWide(std::wstring_view wide)
{
    std::string text;
    for (const wchar_t ch : wide)
    {
        const auto* const found = std::ranges::find(table, ch);
        if (found != std::end(table))
            text += static_cast<char>(firstOfTable + static_cast<unsigned>(found - table));
        else
            text += ch <= 0xFF ? static_cast<char>(ch) : '?';
    }
    return text;
}

// The bytes that follow the first one of a character; a byte that begins none is a character by itself.
size_t Followers(unsigned char first)
{
    if (first >= 0xE0)
        return 2;
    return first >= 0xC0 ? 1 : 0;
}

std::wstring WideOfUtf8(std::string_view text)
{
    std::wstring wide;
    for (size_t index = 0; index < text.size(); ++index)
    {
        const auto first = static_cast<unsigned char>(text[index]);
        const size_t followers = std::min(Followers(first), text.size() - index - 1);
        unsigned code = followers == 0 ? first : first & (0x3FU >> followers);
        for (size_t follower = 0; follower < followers; ++follower)
            code = code << 6U | (static_cast<unsigned char>(text[++index]) & 0x3FU);
        wide += static_cast<wchar_t>(code);
    }
    return wide;
}

std::string Utf8OfWide(std::wstring_view wide)
{
    std::string text;
    for (const char32_t code : std::u32string(wide.begin(), wide.end()))
    {
        if (code >= 0x800)
            text += static_cast<char>(0xE0U | code >> 12U);
        if (code >= 0x80)
        {
            text += static_cast<char>(code >= 0x800 ? 0x80U | (code >> 6U & 0x3FU) : 0xC0U | code >> 6U);
            text += static_cast<char>(0x80U | (code & 0x3FU));
        }
        else
            text += static_cast<char>(code);
    }
    return text;
}

// The length of the text; without a buffer nothing is copied.
template <class Character>
int CopyTo(std::basic_string_view<Character> text, Character* buffer, int size)
{
    if (size != 0)
        text.copy(buffer, static_cast<size_t>(size));
    return static_cast<int>(text.size());
}

} // namespace

int MultiByteToWideChar(UINT codePage, DWORD /*flags*/, LPCSTR text, int length, wchar_t* buffer, int size)
{
    const std::string_view given(text, static_cast<size_t>(length));
    const std::wstring wide = codePage == CP_UTF8 ? WideOfUtf8(given) : WideOfAnsi(given);
    return CopyTo<wchar_t>(wide, buffer, size);
}

int WideCharToMultiByte(UINT codePage, DWORD /*flags*/, LPCWSTR text, int length, char* buffer, int size,
                        LPCSTR /*replacement*/, BOOL* /*isReplaced*/)
{
    const std::wstring_view given(text, static_cast<size_t>(length));
    const std::string bytes = codePage == CP_UTF8 ? Utf8OfWide(given) : AnsiOfWide(given);
    return CopyTo<char>(bytes, buffer, size);
}
