#include "lytdlg/judge/MarkRules.h"

#include <set>

namespace lytdlg
{

namespace
{
namespace mark_rules
{

constexpr Rule indented = {
    "mark-indented",
    Level::Error,
    "A mark that switches lines does not stand in the first column.",
    "Lines between <NAME and > count only when the define NAME is set. The marks stand in the first\n"
    "column; anywhere else the library takes them for statements.",
    "$VALUES\nUnit = m\n >",
    "$VALUES\n<!WIDE\nUnit = m\n>"};

constexpr Rule unopened = {"mark-unopened",
                           Level::Note,
                           "A mark > ends nothing.",
                           "A line that begins with > switches lines on again. Without a mark < above it they are on.",
                           "$VALUES\nUnit = m\n>",
                           "$VALUES\n<!WIDE\nUnit = m\n>"};

constexpr Rule unended = {"mark-unended",
                          Level::Warning,
                          "A mark < is not ended by >.",
                          "Everything down to the next mark, or to the end of the file, belongs to the define.",
                          "$OUTPUT\n<!WIDE",
                          "$OUTPUT\n<!WIDE\n>"};

constexpr Rule nested = {"mark-nested",
                         Level::Warning,
                         "A mark < stands inside another one.",
                         "Marks do not nest: the inner one ends the outer, and the first > ends both.",
                         "$VALUES\n<!WIDE\n<!LONG\nUnit = m\n>",
                         "$VALUES\n<!WIDE\n>\n<!LONG\nUnit = m\n>"};

constexpr Rule nameless = {"mark-nameless",
                           Level::Warning,
                           "No name follows a mark <.",
                           "The name of the define follows the mark at once, without a blank.",
                           "$VALUES\n<! WIDE\nUnit = m\n>",
                           "$VALUES\n<!WIDE\nUnit = m\n>"};

constexpr Rule switchedOff = {
    "define-off",
    Level::Note,
    "Lines are switched off, since no --define names their define.",
    "They were not judged. Judge the description once more with the define that switches them on.",
    "$VALUES\n<WIDE\nUnit = m\n>",
    "$VALUES\nUnit = m"};

// Follows the marks from the first line to the last.
class Marks
{
public:
    explicit Marks(const Case& judged) : m_judged(judged) {}

    void Take(const SourceLine& line)
    {
        const size_t start = line.text.find_first_not_of(" \t");
        if (start == std::string::npos || (line.text[start] != '<' && line.text[start] != '>'))
            return;
        if (start > 0)
        {
            JudgeIndented(line, start);
            return;
        }
        if (line.text.front() == '<')
            Open(line);
        else
            Close(line);
    }

    void End()
    {
        if (m_open != nullptr)
            m_judged.findings.Add(unended, m_judged.description.PlaceOf(m_open->number),
                                  "no > ends this mark down to the end of the file",
                                  "add a line with > after the last line that belongs to the define");
    }

private:
    void JudgeIndented(const SourceLine& line, size_t start)
    {
        if (m_judged.description.IsRefused(line.number))
        {
            m_judged.findings
                .Add(indented, {line.number, static_cast<int>(start), 1}, "this mark is read as a statement",
                     "begin the line with it, without blanks")
                .number = "212";
        }
    }

    void Open(const SourceLine& line)
    {
        const size_t start = line.text.starts_with("<!") ? 2 : 1;
        const std::string name = line.text.substr(start, line.text.find_first_of(" \t;", start) - start);
        const ClytSpan place = m_judged.description.PlaceOf(line.number);
        if (name.empty())
            m_judged.findings.Add(nameless, place, "the name of the define is missing",
                                  "write it right after the mark, without a blank");
        else if (start == 1 && line.section != Section::End && !m_judged.description.text.IsDefined(name) &&
                 m_switchedOff.insert(name).second)
            m_judged.findings.Add(switchedOff, place,
                                  "lines that the define \"" + name + "\" switches on were not judged",
                                  "judge them with --define " + name);
        if (m_open != nullptr)
            m_judged.findings.Add(nested, place,
                                  "marks do not nest: this one ends the mark of line " + std::to_string(m_open->number),
                                  "end the other one with > first");
        m_open = &line;
    }

    void Close(const SourceLine& line)
    {
        if (m_open == nullptr && line.section != Section::Head)
            m_judged.findings.Add(unopened, m_judged.description.PlaceOf(line.number), "this mark ends nothing",
                                  "delete it");
        m_open = nullptr;
    }

    const Case& m_judged;
    const SourceLine* m_open = nullptr;
    std::set<std::string> m_switchedOff; // told once each
};

} // namespace mark_rules
} // namespace

Family MarkRules()
{
    using namespace mark_rules;
    return {{&indented, &unopened, &unended, &nested, &nameless, &switchedOff},
            [](const Case& judged)
            {
                Marks marks(judged);
                for (const SourceLine& line : judged.description.text.Lines())
                    marks.Take(line);
                marks.End();
            }};
}

} // namespace lytdlg
