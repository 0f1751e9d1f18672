// The platform's profile functions. One table of cases in the tests runs against both.
#include "native/FaultPlan.h"
#include "native/MemoryFiles.h"
#include "native/NativePath.h"
#include "system/CodePage1252.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <unistd.h>

namespace
{

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// A file that cannot be opened has no descriptor, and nothing can be read from it.
struct FileToRead
{
    explicit FileToRead(const std::string& path) : descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    FileToRead(const FileToRead&) = delete;
    FileToRead& operator=(const FileToRead&) = delete;
    ~FileToRead() { ::close(descriptor); }

    int descriptor;
};

struct Line
{
    bool isComment;
    bool hasValue;          // there is an '=' in it
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

bool SameLetter(char left, char right)
{
    return ToLower1252(static_cast<unsigned char>(left)) == ToLower1252(static_cast<unsigned char>(right));
}

// The blanks round either name do not count, nor does case.
bool SameName(std::string_view left, std::string_view right)
{
    return std::ranges::equal(UpToNul(Trimmed(left)), UpToNul(Trimmed(right)), SameLetter);
}

// Empty for a file that cannot be read, a folder among them. A language file is read for each text that a dialog shows,
// so it is read in one piece and without a stream.
std::string ReadWholeFile(const char* fileName)
{
    const std::string path = NativePath(fileName);
    if (platform::IsInMemory(path))
    {
        const std::string* held = platform::FindMemoryFile(path);
        return held != nullptr ? *held : std::string();
    }
    std::string content;
    const FileToRead file(path);
    char block[16384];
    for (ssize_t count = sizeof block; count == sizeof block;)
    {
        count = ::read(file.descriptor, block, sizeof block);
        content.append(block, static_cast<size_t>(std::max<ssize_t>(count, 0)));
    }
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

// Takes the first line off a text, and gives it without the blanks round it. A carriage return alone ends a line, too.
std::string_view TakeLine(std::string_view& rest)
{
    const std::string_view line = rest.substr(0, rest.find('\n'));
    const size_t end = std::min(line.find('\r'), line.size());
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return Trimmed(line.substr(0, end));
}

// Whether only blanks come before a place in its line.
bool IsFirstOfLine(std::string_view file, size_t place)
{
    for (; place > 0 && file[place - 1] != '\n' && file[place - 1] != '\r'; --place)
    {
        if (!IsBlank(file[place - 1]))
            return false;
    }
    return true;
}

// What follows the line of the first section of that name. What comes before the first section line is a section with
// an empty name.
std::string_view TextOfSection(std::string_view file, std::string_view section)
{
    if (SameName(section, ""))
        return file;
    for (size_t bracket = file.find('['); bracket != std::string_view::npos; bracket = file.find('[', bracket + 1))
    {
        std::string_view rest = file.substr(bracket);
        std::string_view name;
        if (IsFirstOfLine(file, bracket) && IsSectionLine(TakeLine(rest), name) && SameName(name, section))
            return rest;
    }
    return {};
}

// Takes the next line off the text of a section; false at the end of the section. Blank lines are left out; comments
// stay for the caller to judge.
bool TakeSectionLine(std::string_view& rest, Line& line)
{
    while (!rest.empty())
    {
        const std::string_view text = TakeLine(rest);
        std::string_view name;
        if (IsSectionLine(text, name))
            return false;
        if (text.empty())
            continue;
        line = SplitLine(text);
        return true;
    }
    return false;
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
        else if (inside && SameName(SplitLine(text).name, key))
            return {begin, end};
        if (inside)
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
    const platform::PlatformAtWork working;
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
    const bool isToFail = platform::IsToFail(platform::FaultKind::Profile);
    const platform::PlatformAtWork working;
    const std::string file = isToFail ? std::string() : ReadWholeFile(fileName);
    std::string_view rest = TextOfSection(file, section);
    Line line{};
    bool isFound = false;
    while (!isFound && TakeSectionLine(rest, line))
        isFound = SameName(line.name, key);
    const std::string_view value = isFound && line.hasValue ? line.value : Default(defaultText);
    const size_t written = Unquoted(value).copy(buffer, size - 1);
    buffer[written] = '\0';
    return static_cast<DWORD>(written);
}

DWORD GetPrivateProfileSectionA(const char* section, char* buffer, DWORD size, const char* fileName)
{
    const std::string file = ReadWholeFile(fileName);
    std::string lines;
    std::string_view rest = TextOfSection(file, section);
    for (Line line{}; TakeSectionLine(rest, line);)
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
