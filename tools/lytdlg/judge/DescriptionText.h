// The text of a description as the library sees it: its lines, which of them the defines leave in, and the lines that open
// its sections.
#pragma once

#include "base/ClytSpan.h"
#include "base/DelimiterSet.h"
#include "lytdlg/judge/SourceLines.h"

#include <map>

namespace lytdlg
{

// What the library takes for the end of a file, with anything after it.
inline constexpr char endOfText = 0x1A;

inline constexpr Section allSections[] = {Section::Head,       Section::Layout, Section::Values, Section::Dependencies,
                                          Section::Evaluation, Section::Input,  Section::Output, Section::End};

// The characters that end a word in the statements of a section.
DelimiterSet DelimitersOf(Section section);

// A line that was meant as a header but is not one: its word is misspelt or continues after a blank.
struct FalseHeader
{
    Section section = Section::Head; // that it was meant to open
    Section present = Section::Head; // that it is read as a statement of
    std::string word;                // as the library reads it
    std::string meant;               // the whole line as it should be
    ClytSpan place;
};

// What switches lines on or off: a line, or a further piece of one, that begins with `<` or `>`.
struct SwitchMark
{
    std::string define; // that `<` names
    bool isOpening = false;
    bool isInverted = false;
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
    const std::vector<SwitchMark>& Marks() const { return m_marks; }
    // The names that lines are switched by, each once.
    const std::vector<std::string>& DefineNames() const { return m_defineNames; }
    bool IsDefined(const std::string& name) const;
    // The line that opens a section first; null when none does.
    const SourceLine* HeaderOf(Section section) const;
    // Lines of the section are above its first header.
    bool BeginsWithoutHeader(Section section) const;
    // The lines of a section that are read, its header and the headers of its parts among them.
    std::vector<const SourceLine*> LinesOf(Section section) const;
    // The same lines, and among them the marks with what they switch off.
    std::vector<const SourceLine*> LinesWithMarksOf(Section section) const;
    bool EndsWithLineEnd() const { return m_endsWithLineEnd; }
    // What comes after a Ctrl-Z, which ends the text, is not read.
    bool HasEndMark() const { return m_hasEndMark; }
    // Whether anything but blanks comes after it.
    bool HasTextAfterEndMark() const { return m_hasTextAfterEndMark; }
    // The mark that some editors put before a text in UTF-8. The library takes it for text; it is not in the lines.
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
    std::vector<SwitchMark> m_marks;
    std::vector<std::string> m_defineNames;
    std::map<Section, int> m_lastHeaders; // the last line that holds the right word, in any place
    bool m_endsWithLineEnd = true;
    bool m_hasEndMark = false;
    bool m_hasTextAfterEndMark = false;
    bool m_hasByteOrderMark = false;
};

} // namespace lytdlg
