#include "sysinfo/fonts/Fonts.h"

#include "environment/ClytINISection.h"

#include <map>

namespace
{

// Names in the order of their bytes, a shorter one ahead of its continuations.
using FontMap = std::map<CString, std::vector<FontEntry>>;

CString TableLine(const char* family, const char* name, const char* charset)
{
    CString line;
    line.Format("  %-30s | %-30s | %s", family, name, charset);
    return line;
}

CString Rule(const CString& heading)
{
    return CString("  ") + CString('-', heading.GetLength());
}

// The fonts of one name. Equal lines in a row are shown once: fonts that differ in nothing that the table shows.
void AddEntryLines(const std::vector<FontEntry>& entries, CStringList& lines)
{
    CString last;
    for (const FontEntry& entry : entries)
    {
        const CString line = TableLine("", entry.fullName, lytCharsetName(entry.charset));
        if (line == last)
            continue;
        lines.AddTail(line);
        last = line;
    }
}

void AddTable(const FontMap& fonts, CStringList& lines)
{
    const CString heading = TableLine("Font Family", "Font Name", "Character set");
    const CString rule = Rule(heading);
    lines.AddTail(rule);
    lines.AddTail(heading);
    for (const auto& [name, entries] : fonts)
    {
        lines.AddTail(rule);
        lines.AddTail(TableLine(name, "", "     "));
        AddEntryLines(entries, lines);
    }
    lines.AddTail(rule);
}

} // namespace

const char* lytCharsetName(unsigned char charset)
{
    static constexpr struct
    {
        unsigned char charset;
        const char* name;
    } names[] = {{0, "ANSI_CHARSET"},      {1, "DEFAULT_CHARSET"},    {2, "SYMBOL_CHARSET"},
                 {77, "MAC_CHARSET"},      {128, "SHIFTJIS_CHARSET"}, {129, "HANGUL_CHARSET"},
                 {130, "JOHAB_CHARSET"},   {134, "GB2312_CHARSET"},   {136, "CHINESEBIG5_CHARSET"},
                 {161, "GREEK_CHARSET"},   {162, "TURKISH_CHARSET"},  {163, "VIETNAMESE_CHARSET"},
                 {177, "HEBREW_CHARSET"},  {178, "ARABIC_CHARSET"},   {186, "BALTIC_CHARSET"},
                 {204, "RUSSIAN_CHARSET"}, {222, "THAI_CHARSET"},     {238, "EASTEUROPE_CHARSET"},
                 {255, "OEM_CHARSET"}};
    for (const auto& entry : names)
    {
        if (entry.charset == charset)
            return entry.name;
    }
    return "<unknown>";
}

std::vector<CString> FontNames(const CString& value)
{
    std::vector<CString> names;
    for (int start = 0; start < value.GetLength();)
    {
        const int comma = value.Find(',', start);
        const int end = comma < 0 ? value.GetLength() : comma;
        if (end > start)
            names.push_back(value.Mid(start, end - start));
        start = end + 1;
    }
    return names;
}

void AddFontLines(const CString& iniFile, const ClytINISection* section, const ListFonts& listFonts, CStringList& lines)
{
    lines.AddTail("Fonts Information from " + iniFile);
    if (section == nullptr)
    {
        lines.AddTail("Section is EMPTY or not found!");
        return;
    }

    FontMap fonts;
    for (const ClytINIStruct& entry : *section)
    {
        lines.AddTail("  " + entry.key + "=" + entry.value);
        for (const CString& name : FontNames(entry.value))
        {
            if (!fonts.contains(name))
                fonts.emplace(name, listFonts(name));
        }
    }
    AddTable(fonts, lines);
}
