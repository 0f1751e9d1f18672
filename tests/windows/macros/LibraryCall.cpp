#include "LibraryCall.h"

#include <algorithm>

namespace macros
{

namespace
{

constexpr size_t mostArguments = 7;
constexpr char guard = '\x5A';
constexpr size_t guardBytes = 64;

// The texts of one call, side by side.
class TextBlock
{
public:
    explicit TextBlock(const Arguments& arguments)
    {
        for (const auto& argument : arguments)
            m_places.push_back(Append(*argument));
        m_bytes.append(guardBytes, guard);
    }

    // The address for the text of an argument; 0 for one that was never set.
    intptr_t AddressOf(size_t index) { return m_places[index].isSet ? reinterpret_cast<intptr_t>(At(index)) : 0; }

    void CopyBack(const Arguments& arguments)
    {
        if (!std::all_of(m_bytes.end() - guardBytes, m_bytes.end(), [](char byte) { return byte == guard; }))
            throw MacroError(syntaxError, "the function wrote beyond its texts");
        for (size_t i = 0; i < arguments.size(); ++i)
        {
            if (m_places[i].isSet)
                arguments[i]->value = TextFrom(Wide(std::string(At(i), m_places[i].length)));
        }
    }

private:
    struct Place
    {
        bool isSet = false;
        size_t start = 0;
        size_t length = 0;
    };

    Place Append(const Variable& argument)
    {
        const Text* text = std::get_if<Text>(&argument.value);
        if (text == nullptr || !text->isSet)
            return {};
        const std::string bytes = Bytes(text->characters);
        const Place place{true, m_bytes.size(), bytes.size()};
        m_bytes.append(bytes).push_back('\0');
        return place;
    }

    char* At(size_t index) { return m_bytes.data() + m_places[index].start; }

    std::string m_bytes;
    std::vector<Place> m_places;
};

intptr_t NumberFor(const Parameter& parameter, const Variable& argument)
{
    const long long number = NumberIn(argument.value);
    return parameter.isPointer ? number : static_cast<int>(number);
}

} // namespace

FARPROC Libraries::Find(const Declaration& declaration)
{
    HMODULE& library = m_libraries[declaration.library];
    if (library == nullptr)
        library = LoadLibraryA(declaration.library.c_str());
    if (library == nullptr && GetLastError() == ERROR_MOD_NOT_FOUND)
        throw MacroError(fileNotFound, "File not found: " + declaration.library);
    if (library == nullptr)
        throw MacroError(cannotBeLoaded, "Error in loading DLL");
    FARPROC function = GetProcAddress(library, declaration.function.c_str());
    if (function == nullptr)
        throw MacroError(noSuchFunction, "Can't find DLL entry point " + declaration.function);
    return function;
}

Value Libraries::Call(const Declaration& declaration, const Arguments& arguments)
{
    const std::vector<Parameter>& parameters = declaration.signature.parameters;
    if (arguments.size() != parameters.size() || arguments.size() > mostArguments)
        throw MacroError(syntaxError, "the number of arguments is wrong");

    const FARPROC found = Find(declaration);
    TextBlock block(arguments);
    intptr_t words[mostArguments] = {};
    for (size_t i = 0; i < arguments.size(); ++i)
    {
        if (arguments[i]->type != parameters[i].type)
            throw MacroError(typeMismatch, parameters[i].name + " has another type");
        words[i] = parameters[i].type == Type::Texts ? block.AddressOf(i) : NumberFor(parameters[i], *arguments[i]);
    }
    // On this platform a function does not notice arguments that it does not have.
    using Function = intptr_t(intptr_t, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t);
    auto* function = reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
    const intptr_t result = function(words[0], words[1], words[2], words[3], words[4], words[5], words[6]);
    m_lastError = GetLastError();
    block.CopyBack(arguments);
    return declaration.signature.isResultPointer ? static_cast<long long>(result) : static_cast<int>(result);
}

} // namespace macros
