// The text of a description as the library sees it: its lines, which of them the defines leave in, and the lines that open
// its sections.
#pragma once

#include "base/ClytSpan.h"
#include "dlgfile/SectionDelimiters.h"

#include <map>
#include <string>
#include <vector>

namespace lytdlg
{

// What the library takes for the end of a file, whatever follows.
inline constexpr char endOfText = 0x1A;

// The sections in the order that a description must have. Each opens with its word, but for the head, which is what
// stands above $LAYOUT.
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

inline constexpr Section allSections[] = {Section::Head,       Section::Layout, Section::Values, Section::Dependencies,
                                          Section::Evaluation, Section::Input,  Section::Output, Section::End};

// The word that opens a section; "$VERSION" for the head, which must hold that word.
const char* WordOf(Section section);
// The characters that end a word in the statements of a section.
const DelimiterSet& DelimitersOf(Section section);

struct SourceLine
{
    std::string text;                // without its line end
    int number = 0;                  // in the file, from 1
    int counted = 0;                 // as messages of the library count it; 0 for a line that is not read
    bool isRead = true;              // the defines leave it in, and it is no mark itself
    Section section = Section::Head; // in which it stands; a header stands in its own
    bool isHeader = false;           // it opens its section, or a further part of it
    bool isStray = false;            // a header that does not belong there, and opens nothing
    std::string meant;               // what a header was meant to be; empty when it is right, or no header
};

// A line that was meant as a header and is none, since its word is misspelt or goes on after a blank.
struct FalseHeader
{
    Section section = Section::Head; // that it was meant to open
    Section present = Section::Head; // that it is read as a statement of
    std::string word;                // as the library reads it
    std::string meant;               // the whole line as it should be
    ClytSpan place;
};

class DescriptionText
{
public:
    // The bytes of a file, and the defines that switch its lines.
    DescriptionText(std::string bytes, std::vector<std::string> defines);

    const std::string& Bytes() const { return m_bytes; }
    const std::vector<std::string>& Defines() const { return m_defines; }
    const std::vector<SourceLine>& Lines() const { return m_lines; }
    // An empty line for a number that the file does not have.
    const SourceLine& Line(int number) const;
    const std::vector<FalseHeader>& FalseHeaders() const { return m_falseHeaders; }
    // The names that lines are switched by, each once.
    const std::vector<std::string>& DefineNames() const { return m_defineNames; }
    bool IsDefined(const std::string& name) const;
    // The line that opens a section first; null when none does.
    const SourceLine* HeaderOf(Section section) const;
    // Lines of the section stand above its first header.
    bool BeginsWithoutHeader(Section section) const;
    // The lines of a section that are read, its header and those of its parts among them.
    std::vector<const SourceLine*> LinesOf(Section section) const;
    bool EndsWithLineEnd() const { return m_endsWithLineEnd; }
    // What stands after a Ctrl-Z, which ends the text, is not read.
    bool HasEndMark() const { return m_hasEndMark; }
    // Whether more than blanks stand after it.
    bool HasTextAfterEndMark() const { return m_hasTextAfterEndMark; }
    // The mark that some editors put before a text in UTF-8. The library takes it for letters; it is not in the lines.
    bool HasByteOrderMark() const { return m_hasByteOrderMark; }

private:
    void SplitLines(const std::string& bytes);
    void ApplyDefines();
    void FindSections();
    // Goes through the lines; a section of the list begins where its statements seem to, since it has no header.
    void GoThroughSections(const std::vector<Section>& withoutHeader);
    std::vector<Section> SectionsWithoutHeader() const;
    bool HasFurtherPartsOnly(Section section) const;
    // The section that the line opens; the present one when it opens none.
    Section Opened(SourceLine& line, Section present);
    bool IsStray(Section section, Section present, int line) const;
    bool HasBelow(Section section, int line) const;

    std::string m_bytes;
    std::vector<SourceLine> m_lines;
    std::vector<FalseHeader> m_falseHeaders;
    std::vector<std::string> m_defines;
    std::vector<std::string> m_defineNames;
    std::map<Section, int> m_lastHeaders; // the last line that holds the right word, wherever it stands
    bool m_endsWithLineEnd = true;
    bool m_hasEndMark = false;
    bool m_hasTextAfterEndMark = false;
    bool m_hasByteOrderMark = false;
};

} // namespace lytdlg
