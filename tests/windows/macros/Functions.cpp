#include "Functions.h"

#include <algorithm>
#include <cwctype>
#include <iterator>
#include <map>

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

Value Character(const Arguments& arguments)
{
    return TextFrom(std::wstring(1, static_cast<wchar_t>(CountAt(arguments, 0))));
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

} // namespace

std::optional<Value> CallFunction(const std::string& name, const Arguments& arguments)
{
    static const std::map<std::string, Value (*)(const Arguments&)> functions = {
        {"len", [](const Arguments& of) -> Value { return static_cast<long long>(TextAt(of, 0).size()); }},
        {"left", [](const Arguments& of) -> Value { return TextFrom(TextAt(of, 0).substr(0, CountAt(of, 1))); }},
        {"right",
         [](const Arguments& of) -> Value
         {
             const std::wstring& text = TextAt(of, 0);
             return TextFrom(text.substr(text.size() - std::min(text.size(), CountAt(of, 1))));
         }},
        {"mid",
         [](const Arguments& of) -> Value
         {
             const std::wstring& text = TextAt(of, 0);
             return TextFrom(text.substr(std::min(text.size(), CountAt(of, 1) - 1)));
         }},
        {"instr",
         [](const Arguments& of) -> Value
         {
             const size_t place = TextAt(of, 0).find(TextAt(of, 1));
             return place == std::wstring::npos ? 0LL : static_cast<long long>(place) + 1;
         }},
        {"string",
         [](const Arguments& of) -> Value { return TextFrom(std::wstring(CountAt(of, 0), TextAt(of, 1).at(0))); }},
        {"space", [](const Arguments& of) -> Value { return TextFrom(std::wstring(CountAt(of, 0), L' ')); }},
        {"chr", Character},
        {"chrw", Character},
        {"lcase",
         [](const Arguments& of) -> Value
         {
             std::wstring text = TextAt(of, 0);
             std::ranges::transform(text, text.begin(),
                                    [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
             return TextFrom(text);
         }},
        {"cstr", [](const Arguments& of) -> Value { return TextFrom(std::to_wstring(NumberIn(of.at(0)->value))); }},
        {"val",
         [](const Arguments& of) -> Value
         { return static_cast<long long>(std::wcstoll(TextAt(of, 0).c_str(), nullptr, 10)); }},
        // The address of the characters of a variable, which a function may write to.
        {"strptr",
         [](const Arguments& of) -> Value
         {
             Text& text = std::get<Text>(of.at(0)->value);
             return text.isSet ? reinterpret_cast<long long>(text.characters.data()) : 0LL;
         }},
        {"strconv", Converted},
    };
    const auto function = functions.find(name);
    return function != functions.end() ? std::optional(function->second(arguments)) : std::nullopt;
}

std::optional<Value> ConstantOf(const std::string& name)
{
    static const std::map<std::string, Value> constants = {
        {"true", yes},
        {"false", no},
        {"vbnullchar", TextFrom(std::wstring(1, L'\0'))},
        {"vbnullstring", Text()},
        {"vbcr", TextFrom(L"\r")},
        {"vbcrlf", TextFrom(L"\r\n")},
        {"vbfromunicode", toBytes},
        {"vbunicode", fromBytes},
        {"vbobjecterror", -2147221504LL},
    };
    const auto constant = constants.find(name);
    return constant != constants.end() ? std::optional(constant->second) : std::nullopt;
}

} // namespace macros
