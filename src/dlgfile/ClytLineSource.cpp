#include "dlgfile/ClytLineSource.h"

#include <cstring>

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
// with `>` switches it on. They do not nest, and they count in stretches that are switched off, too.
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
    if (CStdioFile::ReadString(buffer, count) == nullptr)
        return false;
    place.column = isLineOpen ? place.column + place.length : 0;
    place.line += isLineOpen ? 0 : 1;
    const size_t length = std::strlen(buffer);
    isLineOpen = length == 0 || buffer[length - 1] != '\n';
    place.length = static_cast<int>(length) - (isLineOpen ? 0 : 1);
    return true;
}
