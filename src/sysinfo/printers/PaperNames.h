// The papers that a printer can name by number.
#pragma once

// The numbers are those of the platform's DMPAPER constants; 0 is none of them. Texts are in code page 1252.
inline constexpr int lytPaperCount = 118;
extern const char* const lytPaperNames[lytPaperCount];
