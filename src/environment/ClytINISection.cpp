#include "environment/ClytINISection.h"

#include "environment/ProfileFile.h"

#include <algorithm>
#include <cstring>

namespace
{

constexpr int probeSize = 3;
// A longer section is cut here, within a line if need be.
constexpr int sectionSize = 2048;

} // namespace

bool ClytINISection::Read()
{
    clear();
    // A small buffer is enough to see that a section is absent.
    char buffer[sectionSize];
    if (lytReadProfileSection(sectionName, buffer, probeSize, fileName) == 0)
        return false;

    const int count = lytReadProfileSection(sectionName, buffer, sectionSize, fileName);
    for (const char* line = buffer; line < buffer + count; line += std::strlen(line) + 1)
        AddLine(line);
    return !empty();
}

void ClytINISection::AddLine(const char* line)
{
    ClytINIStruct entry;
    const char* equals = std::strchr(line, '=');
    size_t length = std::strlen(line);
    if (equals == nullptr || equals == line)
        entry.key = line;
    else
    {
        entry.key = CString(line, static_cast<int>(equals - line));
        entry.value = equals + 1;
        longestKey = std::max(longestKey, static_cast<size_t>(entry.key.GetLength()));
        length = static_cast<size_t>(entry.value.GetLength());
    }
    // A line without a value counts here with its whole length.
    longestValue = std::max(longestValue, length);
    push_back(entry);
}
