#include "Value.h"

#include <windows.h>

namespace macros
{

namespace
{

UINT hostCodePage = CP_ACP;

} // namespace

HostCodePage::HostCodePage(unsigned codePage)
{
    hostCodePage = codePage;
}

HostCodePage::~HostCodePage()
{
    hostCodePage = CP_ACP;
}

Text TextFrom(const std::wstring& characters)
{
    return {characters, true};
}

std::wstring Wide(const std::string& bytes)
{
    std::wstring text(bytes.size(), L'\0');
    const int size = static_cast<int>(bytes.size());
    text.resize(static_cast<size_t>(MultiByteToWideChar(hostCodePage, 0, bytes.data(), size, text.data(), size)));
    return text;
}

std::string Bytes(const std::wstring& text)
{
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 2, '\0');
    bytes.resize(static_cast<size_t>(WideCharToMultiByte(hostCodePage, 0, text.data(), size, bytes.data(),
                                                         static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

long long NumberIn(const Value& value)
{
    if (const auto* number = std::get_if<long long>(&value))
        return *number;
    throw MacroError(typeMismatch, "a number is needed");
}

const Text& TextIn(const Value& value)
{
    if (const auto* text = std::get_if<Text>(&value))
        return *text;
    throw MacroError(typeMismatch, "a text is needed");
}

Collection& ObjectIn(const Value& value)
{
    const auto* object = std::get_if<Object>(&value);
    if (object == nullptr || *object == nullptr)
        throw MacroError(typeMismatch, "a collection is needed");
    return **object;
}

Value InitialValue(Type type)
{
    if (type == Type::Texts)
        return Text();
    if (type == Type::Objects)
        return Object();
    return 0LL;
}

void Assign(Variable& variable, Value value)
{
    if (variable.value.index() != value.index())
        throw MacroError(typeMismatch, "the value is of another type than the variable");
    variable.value = std::move(value);
}

} // namespace macros
