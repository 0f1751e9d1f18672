// One section of `lyt.ini` in aligned columns.
#pragma once

#include <afx.h>

#include <vector>

class ClytINISection;

// The lines of a section that was read; of one without lines it says so.
std::vector<CString> IniSectionLines(const ClytINISection& section);
