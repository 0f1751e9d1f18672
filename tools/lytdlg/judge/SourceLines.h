// The lines of a description as the library's line source takes them: in pieces, and each up to a NUL byte.
#pragma once

#include "dlgfile/SectionDelimiters.h"

#include <string>
#include <vector>

namespace lytdlg
{

// The sections in the order that a description must have. Each opens with its word, but for the head, which is what
// is above $LAYOUT.
enum class Section
{
    Head,
    Layout,
    Values,
    Dependencies,
    Evaluation,
    Input,
    Output,
    End
};

struct SourceLine
{
    std::string text;                // without its line end
    int number = 0;                  // in the file, from 1
    int counted = 0;                 // as messages of the library count it; 0 for a line that is not read
    bool isRead = true;              // the defines leave it in, and it is no mark itself
    Section section = Section::Head; // in which it is; a header belongs to the section that it begins
    bool isHeader = false;           // it opens its section, or a further part of it
    bool isStray = false;            // a header that does not belong there, and opens nothing
    std::string meant;               // what a header was meant to be; empty when it is right, or no header
};

class SourceLines
{
public:
    // The lines outlive it. Those of the end are delivered after them, with the numbers that follow.
    SourceLines(std::vector<const SourceLine*> lines, std::vector<std::string> end);

    // The next piece of at most `count` characters, and a NUL; gives by how many lines its number is above that of the
    // piece before, and 0 at the end.
    int Take(char* buffer, unsigned count);
    // The place of the piece that was taken last.
    int Number() const { return m_number; }
    int Column() const { return m_pieceColumn; }

private:
    const std::string& Present() const;

    std::vector<const SourceLine*> m_lines;
    std::vector<std::string> m_end;
    size_t m_line = 0;   // the next to take, the last ones being the lines of the end
    size_t m_column = 0; // how much of it was taken
    int m_number = 0;    // of the line taken last
    int m_pieceColumn = 0;
};

} // namespace lytdlg
