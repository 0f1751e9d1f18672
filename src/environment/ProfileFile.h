// Reads of configuration files (`lyt.ini`, the language files), with the line forms of the platform's profile functions:
// names without regard to case, blanks round names and values cut, one pair of quotes round a value taken off, comments
// left out.
#pragma once

#include <afx.h>

// The value of a key, cut to size - 1 bytes; the default when file, section or key is missing. Empty names follow the
// platform: it looks for a section or a key without a name.
CString lytReadProfileText(const char* section, const char* key, const char* defaultText, int size,
                           const char* fileName);

// The lines of a section, each ended by a NUL, as many as fit into size - 2 bytes; returns the number of bytes without
// the list's own final NUL, or size - 2 when the section was cut. `buffer` has room for `size` bytes.
int lytReadProfileSection(const char* section, char* buffer, int size, const char* fileName);
