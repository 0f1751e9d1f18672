// The library's reader over the lines of one section.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

class SectionReader : public ClytDialogFile
{
public:
    // Delivers the lines and then the word that ends their section, whether the file has it or not. The mistakes, with
    // their places in the file, go to the list.
    SectionReader(std::vector<const SourceLine*> sectionLines, const char* endWord, std::vector<Mistake>& mistakes);

protected:
    int TakeLine(char* buffer, UINT count) override;

private:
    class Sink : public ErrorSink
    {
    public:
        Sink(std::vector<Mistake>& target, int last) : mistakes(target), lastLine(last) {}
        void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place) override;
        void TellShortLine(const ClytSpan& place) override;

    private:
        // A mistake after the last line, at the word that ends the section, counts as one of that line.
        ClytSpan InFile(const ClytSpan& place) const;

        std::vector<Mistake>& mistakes;
        int lastLine;
    };

    Sink m_sink;
    std::vector<const SourceLine*> m_lines; // of the description, which outlives its readers
    std::string m_endLine;
    size_t m_line = 0;   // the next to take, the last one being that of the end word
    size_t m_column = 0; // how much of it was taken
    int m_number = 0;    // of the line taken last
};

} // namespace lytdlg
