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
    SectionReader(const DescriptionText& text, std::vector<const SourceLine*> sectionLines, const char* endWord,
                  std::vector<Mistake>& mistakes);

protected:
    int TakeLine(char* buffer, UINT count) override { return m_lines.Take(buffer, count); }

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
    SourceLines m_lines; // of the description, which outlives its readers
};

} // namespace lytdlg
