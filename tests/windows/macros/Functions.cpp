#include "Functions.h"

#include <algorithm>
#include <cwctype>
#include <iterator>

namespace macros
{

namespace
{

// Directions of a conversion.
constexpr long long fromBytes = 64;
constexpr long long toBytes = 128;

const std::wstring& TextAt(const Arguments& arguments, size_t index)
{
    return TextIn(arguments.at(index)->value).characters;
}

size_t CountAt(const Arguments& arguments, size_t index)
{
    const long long count = NumberIn(arguments.at(index)->value);
    if (count < 0)
        throw MacroError(5, "Invalid procedure call or argument");
    return static_cast<size_t>(count);
}

Value Length(const Arguments& arguments)
{
    return static_cast<long long>(TextAt(arguments, 0).size());
}

Value Left(const Arguments& arguments)
{
    return TextFrom(TextAt(arguments, 0).substr(0, CountAt(arguments, 1)));
}

Value Right(const Arguments& arguments)
{
    const std::wstring& text = TextAt(arguments, 0);
    return TextFrom(text.substr(text.size() - std::min(text.size(), CountAt(arguments, 1))));
}

Value Middle(const Arguments& arguments)
{
    const std::wstring& text = TextAt(arguments, 0);
    return TextFrom(text.substr(std::min(text.size(), CountAt(arguments, 1) - 1)));
}

Value Position(const Arguments& arguments)
{
    const size_t place = TextAt(arguments, 0).find(TextAt(arguments, 1));
    return place == std::wstring::npos ? 0LL : static_cast<long long>(place) + 1;
}

Value Repeated(const Arguments& arguments)
{
    return TextFrom(std::wstring(CountAt(arguments, 0), TextAt(arguments, 1).at(0)));
}

Value Blanks(const Arguments& arguments)
{
    return TextFrom(std::wstring(CountAt(arguments, 0), L' '));
}

Value Character(const Arguments& arguments)
{
    return TextFrom(std::wstring(1, static_cast<wchar_t>(CountAt(arguments, 0))));
}

Value InSmallLetters(const Arguments& arguments)
{
    std::wstring text = TextAt(arguments, 0);
    std::ranges::transform(text, text.begin(), [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    return TextFrom(text);
}

// One character for each byte, with either direction.
Value Converted(const Arguments& arguments)
{
    const std::wstring& text = TextAt(arguments, 0);
    if (NumberIn(arguments.at(1)->value) == toBytes)
    {
        const std::string bytes = Bytes(text);
        return TextFrom(std::wstring(bytes.begin(), bytes.end()));
    }
    std::string bytes;
    std::ranges::transform(text, std::back_inserter(bytes), [](wchar_t byte) { return static_cast<char>(byte); });
    return TextFrom(Wide(bytes));
}

Value InDigits(const Arguments& arguments)
{
    return TextFrom(std::to_wstring(NumberIn(arguments.at(0)->value)));
}

Value NumberOf(const Arguments& arguments)
{
    return static_cast<long long>(std::wcstoll(TextAt(arguments, 0).c_str(), nullptr, 10));
}

// The address of the characters of a variable, which a function may write to.
Value AddressOfText(const Arguments& arguments)
{
    Text& text = std::get<Text>(arguments.at(0)->value);
    return text.isSet ? reinterpret_cast<long long>(text.characters.data()) : 0LL;
}

} // namespace

std::optional<Value> CallFunction(const std::string& name, const Arguments& arguments)
{
    static const struct
    {
        const char* name;
        Value (*call)(const Arguments& arguments);
    } functions[] = {
        {"len", Length},           {"left", Left},         {"right", Right},
        {"mid", Middle},           {"instr", Position},    {"string", Repeated},
        {"space", Blanks},         {"chr", Character},     {"chrw", Character},
        {"lcase", InSmallLetters}, {"cstr", InDigits},     {"val", NumberOf},
        {"strptr", AddressOfText}, {"strconv", Converted},
    };
    for (const auto& function : functions)
    {
        if (name == function.name)
            return function.call(arguments);
    }
    return std::nullopt;
}

std::optional<Value> ConstantOf(const std::string& name)
{
    if (name == "true")
        return yes;
    if (name == "false")
        return no;
    if (name == "vbnullchar")
        return TextFrom(std::wstring(1, L'\0'));
    if (name == "vbnullstring")
        return Text();
    if (name == "vbcr")
        return TextFrom(L"\r");
    if (name == "vbfromunicode")
        return toBytes;
    if (name == "vbunicode")
        return fromBytes;
    if (name == "vbcrlf")
        return TextFrom(L"\r\n");
    if (name == "vbobjecterror")
        return -2147221504LL;
    return std::nullopt;
}

} // namespace macros
