#include "dlgfile/ClytLineSource.h"

#include <cstring>
#include <string_view>

ClytLineSource::ClytLineSource(const char* defineList)
{
    if (defineList == nullptr || *defineList == '\0')
        return;
    const CString list(defineList);
    int start = 0;
    for (int comma = list.Find(','); comma >= 0; comma = list.Find(',', start))
    {
        defines.SetAt(list.Mid(start, comma - start), nullptr);
        start = comma + 1;
    }
    defines.SetAt(list.Mid(start), nullptr);
}

// A line that begins with `<` switches what follows on or off by a define (`<!` the other way round), one that begins
// with `>` switches it on. They do not nest, and they count in lines that are switched off, too.
char* ClytLineSource::ReadString(char* buffer, UINT count)
{
    while (TakeLine(buffer, count, linePlace))
    {
        if (*buffer == '<')
        {
            void* unused = nullptr;
            const bool isDefined = defines.Lookup(DefineOf(buffer), unused);
            lineActive = isDefined != IsInverted(buffer);
        }
        else if (*buffer == '>')
            lineActive = true;
        else if (lineActive)
        {
            ++lineNumber;
            return buffer;
        }
    }
    return nullptr;
}

CString ClytLineSource::DefineOf(const char* line)
{
    const char* const name = line + (IsInverted(line) ? 2 : 1);
    return {name, static_cast<int>(std::strcspn(name, " \t;\n\r"))};
}

bool ClytLineSource::TakeLine(char* buffer, UINT count, ClytSpan& place)
{
    // A NUL byte in the file ends the text of its line, and not the line: the last NUL in the buffer is the reader's own.
    std::memset(buffer, ' ', count + 1);
    if (CStdioFile::ReadString(buffer, count) == nullptr)
        return false;
    const size_t text = std::strcspn(buffer, "\n");
    const size_t end = buffer[text] == '\n' ? text + 1 : std::string_view(buffer, count + 1).rfind('\0');
    place = {place.line + (nextColumn == 0 ? 1 : 0), nextColumn, static_cast<int>(text)};
    nextColumn = buffer[end - 1] == '\n' ? 0 : nextColumn + static_cast<int>(end);
    return true;
}
