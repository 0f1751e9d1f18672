// The platform's profile functions. One table of cases in the tests runs against both.
#include "platform/NativePath.h"

#include <windows.h>

#include <afx.h>
#include <algorithm>
#include <cstring>
#include <ctime>
#include <memory>
#include <string_view>
#include <vector>

namespace
{

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

struct Line
{
    bool isComment;
    bool hasValue;          // an '=' stands in it
    std::string_view name;  // before the first '=', or the whole line
    std::string_view value; // after it
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

std::string_view UpToNul(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

CString Text(std::string_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

// The blanks round either name do not count, nor does case.
bool SameName(std::string_view left, std::string_view right)
{
    return Text(Trimmed(left)).CompareNoCase(Text(Trimmed(right))) == 0;
}

// Empty for a file that cannot be read, a folder among them.
std::string ReadWholeFile(const char* fileName)
{
    std::string content;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(NativePath(fileName).c_str(), "rb"));
    if (file == nullptr)
        return content;
    char block[8192];
    for (size_t count = 0; (count = std::fread(block, 1, sizeof block, file.get())) != 0;)
        content.append(block, count);
    return content;
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
    const bool hasValue = equals != std::string_view::npos;
    return {text.front() == ';', hasValue, UpToNul(Trimmed(text.substr(0, equals))),
            hasValue ? UpToNul(Trimmed(text.substr(equals + 1))) : std::string_view()};
}

// The lines of the first section of that name. What stands ahead of the first section line is a section with an empty
// name. Blank lines are left out; comments stay for the caller to judge.
std::vector<Line> SectionLines(std::string_view file, std::string_view section)
{
    std::vector<Line> lines;
    bool inside = SameName(section, "");
    bool found = inside;
    while (!file.empty())
    {
        const size_t end = std::min(file.find_first_of("\r\n"), file.size());
        const std::string_view text = Trimmed(file.substr(0, end));
        file.remove_prefix(std::min(end + 1, file.size()));

        std::string_view name;
        if (IsSectionLine(text, name))
        {
            if (inside)
                break;
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

// A default loses the blanks at its end, though never its first character.
std::string_view Default(std::string_view text)
{
    while (text.size() > 1 && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

// Where the value of a key is to be written: over the lines of its old value, or at the end of its section.
struct Place
{
    size_t begin = std::string::npos; // npos without the section
    size_t end = std::string::npos;
};

Place PlaceOf(std::string_view file, std::string_view section, std::string_view key)
{
    Place place;
    bool inside = false;
    for (size_t begin = 0; begin < file.size();)
    {
        const size_t end = std::min(file.find('\n', begin), file.size() - 1) + 1;
        const std::string_view text = Trimmed(file.substr(begin, end - begin));
        std::string_view name;
        if (IsSectionLine(text, name))
        {
            if (inside)
                return place;
            inside = SameName(name, section);
        }
        else if (inside && !text.empty() && SameName(SplitLine(text).name, key))
            return {begin, end};
        if (inside && !text.empty())
            place = {end, end};
        begin = end;
    }
    return place;
}

bool WriteWholeFile(const char* fileName, const std::string& content)
{
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(NativePath(fileName).c_str(), "wb"));
    return file != nullptr && std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
}

} // namespace

BOOL WritePrivateProfileStringA(const char* section, const char* key, const char* value, const char* fileName)
{
    std::string file = ReadWholeFile(fileName);
    if (!file.empty() && file.back() != '\n')
        file += "\r\n";
    const std::string line = std::string(key) + "=" + value + "\r\n";
    const Place place = PlaceOf(file, section, key);
    if (place.begin == std::string::npos)
        file += "[" + std::string(section) + "]\r\n" + line;
    else
        file.replace(place.begin, place.end - place.begin, line);
    return WriteWholeFile(fileName, file) ? TRUE : FALSE;
}

DWORD GetPrivateProfileStringA(const char* section, const char* key, const char* defaultText, char* buffer, DWORD size,
                               const char* fileName)
{
    const std::string file = ReadWholeFile(fileName);
    std::string_view value = Default(defaultText);
    const std::vector<Line> lines = SectionLines(file, section);
    const auto line = std::ranges::find_if(lines, [&](const Line& each) { return SameName(each.name, key); });
    if (line != lines.end() && line->hasValue)
        value = line->value;
    const size_t written = Unquoted(value).copy(buffer, size - 1);
    buffer[written] = '\0';
    return static_cast<DWORD>(written);
}

DWORD GetPrivateProfileSectionA(const char* section, char* buffer, DWORD size, const char* fileName)
{
    const std::string file = ReadWholeFile(fileName);
    std::string lines;
    for (const Line& line : SectionLines(file, section))
    {
        if (line.isComment)
            continue;
        lines += line.name;
        if (line.hasValue)
            (lines += '=') += line.value;
        lines += '\0';
    }

    const size_t room = size - 2;
    const size_t written = std::min(lines.size(), room);
    std::memcpy(buffer, lines.data(), written);
    buffer[written] = '\0';
    buffer[written + 1] = '\0';
    return static_cast<DWORD>(written);
}
