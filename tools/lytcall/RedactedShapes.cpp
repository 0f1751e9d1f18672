#include "lytcall/Redaction.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace lytcall
{

namespace
{

bool IsDigit(char c)
{
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

bool IsHexDigit(char c)
{
    return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

size_t LengthOf(const std::string& text, size_t place, bool (*isPart)(char))
{
    const auto start = text.begin() + static_cast<std::ptrdiff_t>(std::min(place, text.size()));
    return static_cast<size_t>(std::find_if_not(start, text.end(), isPart) - start);
}

char At(const std::string& text, size_t place)
{
    return place < text.size() ? text[place] : '\0';
}

// S-1-5-21-..., with what Windows appends to it in names of keys.
size_t LengthOfIdentifier(const std::string& small, size_t place)
{
    constexpr std::string_view start = "s-1-";
    return small.compare(place, start.size(), start) == 0 && IsDigit(At(small, place + start.size()))
               ? LengthOf(small, place, IsPartOfName)
               : 0;
}

size_t LengthOfMail(const std::string& small, size_t place)
{
    const auto isLocal = [](char c) { return IsPartOfName(c) || c == '+' || c == '%'; };
    const size_t local = LengthOf(small, place, isLocal);
    if (local == 0 || At(small, place + local) != '@')
        return 0;
    size_t length = local + 1 + LengthOf(small, place + local + 1, IsPartOfName);
    // A full stop after the address ends a sentence.
    while (small[place + length - 1] == '.')
        --length;
    return length > local + 1 ? length : 0;
}

// Groups of hexadecimal digits, each as long, with one sign between them.
size_t LengthOfGroups(const std::string& small, size_t place, size_t count, size_t digits, char sign)
{
    for (size_t group = 0; group < count; ++group)
    {
        const size_t start = place + group * (digits + 1);
        if (LengthOf(small, start, IsHexDigit) != digits || (group > 0 && small[start - 1] != sign))
            return 0;
    }
    const size_t length = count * (digits + 1) - 1;
    const char next = At(small, place + length);
    return IsLetterOrDigit(next) || next == sign ? 0 : length;
}

size_t LengthOfHardwareAddress(const std::string& small, size_t place)
{
    return std::max({LengthOfGroups(small, place, 6, 2, '-'), LengthOfGroups(small, place, 6, 2, ':'),
                     LengthOfGroups(small, place, 3, 4, '.')});
}

size_t LengthOfAddress4(const std::string& small, size_t place)
{
    constexpr int numbers = 4;
    constexpr int largest = 255;
    size_t length = 0;
    for (int number = 0; number < numbers; ++number)
    {
        const size_t digits = LengthOf(small, place + length, IsDigit);
        if (digits == 0 || digits > 3 || std::stoi(small.substr(place + length, digits)) > largest)
            return 0;
        length += digits;
        if (number < numbers - 1 && At(small, place + length++) != '.')
            return 0;
    }
    const bool continues = At(small, place + length) == '.' && IsDigit(At(small, place + length + 1));
    return continues || IsLetterOrDigit(At(small, place + length)) || (place > 0 && small[place - 1] == '.') ? 0
                                                                                                             : length;
}

// Groups of up to four hexadecimal digits; two colons take the place of groups left out.
size_t LengthOfAddress6(const std::string& small, size_t place)
{
    constexpr int colonsOfWhole = 7;
    const size_t length = LengthOf(small, place, [](char c) { return IsHexDigit(c) || c == ':'; });
    const std::string text = small.substr(place, length);
    const auto colons = std::ranges::count(text, ':');
    const size_t left = text.find("::");
    const bool isShort = left != std::string::npos && left > 0 && left + 2 < text.size() && colons < colonsOfWhole;
    return (isShort || colons == colonsOfWhole) && !IsLetterOrDigit(At(small, place + length)) ? length : 0;
}

constexpr struct
{
    const char* word;
    // 0 for a text of another shape.
    size_t (*lengthAt)(const std::string& small, size_t place);
} shapes[] = {
    {"SID", LengthOfIdentifier},   {"MAIL", LengthOfMail},        {"HARDWARE", LengthOfHardwareAddress},
    {"ADDRESS", LengthOfAddress4}, {"ADDRESS", LengthOfAddress6},
};

} // namespace

bool IsLetterOrDigit(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80;
}

bool IsPartOfName(char c)
{
    return IsLetterOrDigit(c) || (c != '\0' && std::string_view("_-~.").find(c) != std::string_view::npos);
}

FoundShape ShapeAt(const std::string& small, size_t place)
{
    for (const auto& [word, lengthAt] : shapes)
    {
        if (const size_t length = lengthAt(small, place))
            return {word, length};
    }
    return {};
}

} // namespace lytcall
