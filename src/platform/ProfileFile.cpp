// The stand-in for the platform's profile functions. One table of cases in the tests runs against both.
#include "environment/ProfileFile.h"

#include "platform/NativePath.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>
#include <vector>

namespace
{

struct Line
{
    std::string_view text;  // blanks cut at both ends
    std::string_view key;   // before the first '=', or the whole line
    std::string_view value; // behind it
};

bool IsBlank(char ch)
{
    return ch == ' ' || (ch >= '\t' && ch <= '\r') || ch == 0x1A;
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool SameName(std::string_view left, std::string_view right)
{
    return CString(left.data(), static_cast<int>(left.size()))
               .CompareNoCase(CString(right.data(), static_cast<int>(right.size()))) == 0;
}

std::string ReadWholeFile(const char* fileName)
{
    std::ifstream file(NativePath(fileName), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The name between the brackets of a section line; false for any other line.
bool IsSectionLine(std::string_view text, std::string_view& name)
{
    const size_t end = text.rfind(']');
    if (text.empty() || text.front() != '[' || end == std::string_view::npos)
        return false;
    name = text.substr(1, end - 1);
    return true;
}

Line SplitLine(std::string_view text)
{
    const size_t equals = text.find('=');
    if (equals == std::string_view::npos)
        return {text, text, {}};
    return {text, Trimmed(text.substr(0, equals)), Trimmed(text.substr(equals + 1))};
}

// Blank lines are left out; comments stay for the caller to judge.
std::vector<Line> SectionLines(std::string_view file, std::string_view section)
{
    std::vector<Line> lines;
    bool inside = false;
    bool found = false;
    while (!file.empty())
    {
        const size_t end = std::min(file.find_first_of("\r\n"), file.size());
        const std::string_view text = Trimmed(file.substr(0, end));
        file.remove_prefix(std::min(end + 1, file.size()));

        std::string_view name;
        if (IsSectionLine(text, name))
        {
            inside = !found && SameName(name, section);
            found = found || inside;
        }
        else if (inside && !text.empty())
            lines.push_back(SplitLine(text));
    }
    return lines;
}

std::string_view Unquoted(std::string_view value)
{
    const bool quoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

} // namespace

CString ReadProfileText(const char* section, const char* key, const char* defaultText, int size, const char* fileName)
{
    const std::string file = ReadWholeFile(fileName);
    std::string_view value(defaultText);
    for (const Line& line : SectionLines(file, section))
    {
        if (line.text.front() == ';' || line.text.find('=') == std::string_view::npos || !SameName(line.key, key))
            continue;
        value = Unquoted(line.value);
        break;
    }
    return {value.data(), static_cast<int>(std::min(value.size(), static_cast<size_t>(size) - 1))};
}

int ReadProfileSection(const char* section, char* buffer, int size, const char* fileName)
{
    const std::string file = ReadWholeFile(fileName);
    std::string lines;
    for (const Line& line : SectionLines(file, section))
    {
        if (line.text.front() == ';')
            continue;
        lines += line.key;
        if (line.text.find('=') != std::string_view::npos)
            (lines += '=') += line.value;
        lines += '\0';
    }

    const size_t room = static_cast<size_t>(size) - 2;
    const size_t written = std::min(lines.size(), room);
    std::memcpy(buffer, lines.data(), written);
    buffer[written] = '\0';
    buffer[written + 1] = '\0';
    return static_cast<int>(written);
}
