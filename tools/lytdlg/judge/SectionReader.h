// The library's reader over a description whose sections are read each by itself, in their order: at the end of each comes
// the header of the next one, whether the file has it or not.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

class SectionReader : public ClytDialogFile
{
public:
    // The mistakes, with their places in the file, go to the list. Text and list outlive the reader.
    SectionReader(const DescriptionText& text, std::vector<Mistake>& mistakes);

    // Goes to the section that ends with the header of another one, unless it is there already.
    void BeginSectionBefore(Section end);
    void TakeLineAgain() { m_lines.TakeAgain(); }

protected:
    bool TakeLine(char* buffer, UINT count, ClytSpan& place) override { return m_lines.Take(buffer, count, place); }

private:
    class Sink : public ErrorSink
    {
    public:
        explicit Sink(std::vector<Mistake>& target) : m_mistakes(target) {}
        void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place, ClytDue due) override
        {
            m_mistakes.push_back({failure->GetNumber().GetString(), place, due});
        }
        void TellShortLine(const ClytSpan& place, ClytDue due) override { m_mistakes.push_back({"", place, due}); }

    private:
        std::vector<Mistake>& m_mistakes;
    };

    const DescriptionText& m_text;
    Sink m_sink;
    SourceLines m_lines;
    Section m_end = Section::Head;
};

} // namespace lytdlg
