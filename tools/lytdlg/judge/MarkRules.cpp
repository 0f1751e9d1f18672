#include "lytdlg/judge/Families.h"

#include <set>

namespace lytdlg
{

namespace
{

// Follows the marks from the first line to the last.
class Marks
{
public:
    explicit Marks(const Case& judged) : m_judged(judged) {}

    void Take(const SwitchMark& mark)
    {
        if (mark.isOpening)
            Open(mark);
        else
            Close(mark);
    }

    void End()
    {
        if (m_open != nullptr)
            m_judged.findings.Add("mark-unended", PlaceOf(*m_open), "no > ends this mark down to the end of the file",
                                  "add a line with > after the last line that belongs to the define");
    }

private:
    ClytSpan PlaceOf(const SwitchMark& mark) const
    {
        return mark.place.column == 0 ? m_judged.description.PlaceOf(mark.place.line) : mark.place;
    }
    Section SectionOf(const SwitchMark& mark) const { return m_judged.description.text.Line(mark.place.line).section; }

    void Open(const SwitchMark& mark)
    {
        const ClytSpan place = PlaceOf(mark);
        if (mark.define.empty())
            m_judged.findings.Add("mark-nameless", place, "the name of the define is missing",
                                  "write it right after the mark, without a blank");
        else if (!mark.isInverted && SectionOf(mark) != Section::End &&
                 !m_judged.description.text.IsDefined(mark.define) && m_switchedOff.insert(mark.define).second)
            m_judged.findings.Add("define-off", place,
                                  "lines that the define \"" + mark.define + "\" switches on were not judged",
                                  "judge them with --define " + mark.define);
        if (m_open != nullptr)
            m_judged.findings.Add("mark-nested", place,
                                  "marks do not nest: this one ends the mark of line " +
                                      std::to_string(m_open->place.line),
                                  "end the other one with > first");
        m_open = &mark;
    }

    void Close(const SwitchMark& mark)
    {
        if (m_open == nullptr && SectionOf(mark) != Section::Head)
            m_judged.findings.Add("mark-unopened", PlaceOf(mark), "this mark ends nothing", "delete it");
        m_open = nullptr;
    }

    const Case& m_judged;
    const SwitchMark* m_open = nullptr;
    std::set<std::string> m_switchedOff; // reported once each
};

void JudgeIndented(const Case& judged, const SourceLine& line)
{
    const size_t start = line.text.find_first_not_of(" \t");
    const bool isIndented =
        start != std::string::npos && start > 0 && (line.text[start] == '<' || line.text[start] == '>');
    if (isIndented && judged.description.IsRefused(line.number))
        judged.findings
            .Add("mark-indented", {line.number, static_cast<int>(start), 1}, "this mark is read as a statement",
                 "begin the line with it, without blanks")
            .number = lytError("LineForm");
}

} // namespace

void ApplyMarkRules(const Case& judged)
{
    Marks marks(judged);
    for (const SwitchMark& mark : judged.description.text.Marks())
        marks.Take(mark);
    marks.End();
    for (const SourceLine& line : judged.description.text.Lines())
        JudgeIndented(judged, line);
}

} // namespace lytdlg
