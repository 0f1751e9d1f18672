#include "lytcall/Redaction.h"

#include "lytcall/ReportText.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace lytcall
{

namespace
{

constexpr const char* removed = "REMOVED";

bool IsSecret(std::string name)
{
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    // The roots of the registry have known names.
    return !name.starts_with("hkey_") &&
           std::ranges::any_of(std::initializer_list<std::string_view>{"key", "pass", "licen", "serial", "owner"},
                               [&](std::string_view stem) { return name.find(stem) != std::string::npos; });
}

// A value of the registry is printed with the path of its key.
bool HasSecretPart(const std::string& label)
{
    for (size_t start = label.find_first_not_of(' '), end = 0; start < label.size(); start = end + 1)
    {
        end = std::min(label.find_first_of("\\/", start), label.size());
        if (IsSecret(label.substr(start, end - start)))
            return true;
    }
    return false;
}

// What an argument of a command or of an address holds.
size_t EndOfValue(const std::string& line, size_t start)
{
    const bool isQuoted = line[start] == '"';
    return std::min(line.find_first_of(isQuoted ? "\"" : " \"&;<>", start + (isQuoted ? 1 : 0)), line.size());
}

std::string WithoutSecretArguments(std::string line)
{
    for (size_t sign = 0; (sign = line.find_first_of("=:", sign)) != std::string::npos; ++sign)
    {
        size_t start = sign;
        while (start > 0 && IsPartOfName(line[start - 1]))
            --start;
        const size_t value = sign + 1;
        if (!IsSecret(line.substr(start, sign - start)) || value == line.size() || line[value] == ' ')
            continue;
        line.replace(value, EndOfValue(line, value) - value, (line[value] == '"' ? "\"" : "") + std::string(removed));
    }
    return line;
}

} // namespace

std::string WithoutSecrets(const std::string& line)
{
    const std::string label = LabelOf(line);
    // The size after the name of a file is not a secret.
    if (label.ends_with(" Size") || !HasSecretPart(label))
        return WithoutSecretArguments(line);
    const size_t value = line.find_first_not_of(' ', label.size() + 1);
    return value < line.size() ? line.substr(0, value) + removed : line;
}

} // namespace lytcall
