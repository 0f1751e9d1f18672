// The lines of a description as a file delivers them: in pieces, and each up to a NUL byte.
#pragma once

#include "base/ClytSpan.h"
#include "dlgfile/Sections.h"

#include <string>
#include <vector>

namespace lytdlg
{

using Section = ClytSection;

struct SourceLine
{
    std::string text;                // without its line end
    int number = 0;                  // in the file, from 1; 0 for a line that the file does not have
    bool isRead = true;              // the defines leave it in, and it is not a mark itself
    Section section = Section::Head; // in which it is; a header belongs to the section that it begins
    bool isHeader = false;           // it opens its section, or a further part of it
    bool isStray = false;            // a header that does not belong there, and opens nothing
    std::string meant;               // what a header was meant to be; empty when it is right, or no header
};

class SourceLines
{
public:
    // Goes to the first of the lines, which outlive it. The rest of a line that was read in part comes first.
    void GoTo(std::vector<const SourceLine*> lines);
    // The next piece of at most `count` characters, and a NUL, with its place; false at the end. A line that the file does
    // not have is placed below the line before it.
    bool Take(char* buffer, unsigned count, ClytSpan& place);
    // The piece that was taken last comes once more.
    void TakeAgain() { m_next = m_taken; }

private:
    struct Position
    {
        size_t line = 0;
        size_t column = 0;
    };

    std::vector<const SourceLine*> m_lines;
    Position m_taken;
    Position m_next;
};

} // namespace lytdlg
