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
            FixNameless(m_judged.findings.Add("mark-nameless", place, "the name of the define is missing",
                                              "write it right after the mark, without a blank"),
                        mark);
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

    // The blanks between the mark and the name go.
    void FixNameless(Finding& finding, const SwitchMark& mark) const
    {
        const std::string& line = m_judged.description.text.Line(mark.place.line).text;
        const size_t sign = static_cast<size_t>(mark.place.column) + (mark.isInverted ? 2 : 1);
        const size_t name = line.find_first_not_of(" \t", sign);
        if (name != std::string::npos && line[name] != ';')
            finding.FixPerhaps({mark.place.line, static_cast<int>(sign), static_cast<int>(name - sign)}, "");
    }

    void Close(const SwitchMark& mark)
    {
        if (m_open == nullptr && SectionOf(mark) != Section::Head)
        {
            Finding& finding =
                m_judged.findings.Add("mark-unopened", PlaceOf(mark), "this mark ends nothing", "delete it");
            if (mark.place.column == 0)
                finding.FixSafely(PlaceOf(mark), "");
        }
        m_open = nullptr;
    }

    const Case& m_judged;
    const SwitchMark* m_open = nullptr;
    std::set<std::string> m_switchedOff; // reported once each
};

// Whether a mark above the line is not ended yet.
bool IsOpenAt(const DescriptionText& text, int line)
{
    bool isOpen = false;
    for (const SwitchMark& mark : text.Marks())
        isOpen = mark.place.line < line ? mark.isOpening : isOpen;
    return isOpen;
}

void JudgeIndented(const Case& judged, const SourceLine& line)
{
    const size_t start = line.text.find_first_not_of(" \t");
    const bool isIndented =
        start != std::string::npos && start > 0 && (line.text[start] == '<' || line.text[start] == '>');
    if (!isIndented || !judged.description.IsRefused(line.number))
        return;
    const bool isStray = line.text[start] == '>' && !IsOpenAt(judged.description.text, line.number);
    Finding& finding = judged.findings.Add(
        "mark-indented", {line.number, static_cast<int>(start), 1}, "this mark is read as a statement",
        isStray ? "delete it: it ends nothing" : "begin the line with it, without blanks");
    finding.number = lytError("LineForm");
    isStray ? finding.FixSafely(judged.description.PlaceOf(line.number), "")
            : finding.FixSafely({line.number, 0, static_cast<int>(start)}, "");
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
