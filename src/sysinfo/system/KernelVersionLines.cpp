#include "sysinfo/system/KernelVersion.h"

#include "base/Words.h"

unsigned LanguageAndCodePage(unsigned translation)
{
    return translation << 16 | translation >> 16;
}

std::array<int, 4> VersionNumbers(const KernelVersionFacts& facts)
{
    if (!facts.fileVersion)
        return facts.fixedNumbers;
    const CString& text = *facts.fileVersion;
    const int found = text.FindOneOf(",.");
    const char separator = found >= 0 ? text[found] : '.';
    std::array<int, 4> numbers = {};
    const char* place = text;
    for (int& number : numbers)
    {
        const char* end = nullptr;
        number = lytNumberOf(place, &end);
        if (end == place || *end != separator)
            break;
        place = end + 1;
    }
    return numbers;
}

CString KernelDateText(unsigned day, unsigned month, unsigned year, unsigned hour, unsigned minute)
{
    CString text;
    text.Format("%02u.%02u.%04u %02u:%02u", day, month, year, hour, minute);
    return text;
}

CString KernelVersionText(const KernelVersionFacts& facts)
{
    const std::array<int, 4> numbers = VersionNumbers(facts);
    const bool hasDate = numbers != std::array<int, 4>{};
    CString text;
    text.Format("%s; %d,%d,%d,%d; %s; %s", facts.productVersion.GetString(), numbers[0], numbers[1], numbers[2],
                numbers[3], facts.path.GetString(), hasDate ? facts.date.GetString() : "");
    return text;
}
