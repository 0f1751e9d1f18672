// Whether the fonts that `lyt.ini` names are installed, and in which character sets.
#pragma once

#include <afxcoll.h>

#include <functional>
#include <vector>

class ClytINISection;

// One font that the platform has under a name asked for.
struct FontEntry
{
    CString fullName;
    unsigned char charset = 0;
};

// Lists the fonts of a name, in the order of the platform.
using ListFonts = std::function<std::vector<FontEntry>(const CString& name)>;

// "<unknown>" for a number that names no character set.
const char* lytCharsetName(unsigned char charset);

// The names that a value of the section lists. Commas divide; nothing is trimmed, and an empty piece names no font.
std::vector<CString> FontNames(const CString& value);

// Lists each name once, however many keys name it. `section` is null when it could not be read.
void AddFontLines(const CString& iniFile, const ClytINISection* section, const ListFonts& listFonts,
                  CStringList& lines);
