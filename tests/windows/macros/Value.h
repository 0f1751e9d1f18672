// What a macro computes with: whole numbers, texts and collections.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace macros
{

// A text that was never set is passed on as a null pointer.
struct Text
{
    std::wstring characters;
    bool isSet = false;
};

struct Collection;
using Object = std::shared_ptr<Collection>;
using Value = std::variant<long long, Text, Object>;

struct Collection
{
    std::vector<Value> items;
};

// Types differ where a conversion would be needed; enumerations and truth values are numbers.
enum class Type
{
    Numbers,
    Texts,
    Objects
};

struct Variable
{
    Type type = Type::Numbers;
    Value value;
};

constexpr long long yes = -1;
constexpr long long no = 0;

// An error as macros know it: a number, and a text for people.
class MacroError : public std::runtime_error
{
public:
    MacroError(long long number, const std::string& text) : std::runtime_error(text), m_number(number) {}
    long long Number() const { return m_number; }

private:
    long long m_number;
};

// Numbers of the language's own errors.
constexpr long long syntaxError = 0;
constexpr long long typeMismatch = 13;
constexpr long long cannotBeLoaded = 48;
constexpr long long fileNotFound = 53;
constexpr long long noSuchFunction = 453;

Text TextFrom(const std::wstring& characters);
// Between wide texts and bytes in the host's code page.
std::wstring Wide(const std::string& bytes);
std::string Bytes(const std::wstring& text);

// A host with that code page, for as long as the object lives; else the system's.
class HostCodePage
{
public:
    explicit HostCodePage(unsigned codePage);
    ~HostCodePage();
    HostCodePage(const HostCodePage&) = delete;
    HostCodePage& operator=(const HostCodePage&) = delete;
};

long long NumberIn(const Value& value);
const Text& TextIn(const Value& value);
Collection& ObjectIn(const Value& value);

// The value that a variable of the type begins with; and whether a value may be put into one.
Value InitialValue(Type type);
void Assign(Variable& variable, Value value);

} // namespace macros
