#include "lytdlg/judge/SectionRules.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr Rule misspelt = {"section-misspelt",
                           Level::Error,
                           "A line was meant as the header of a section and is none.",
                           "Each section opens with its own word, in capitals and with a $ before it. A line that only "
                           "looks like it is read as a\n"
                           "statement of the section above, and so is all that follows. A blank does not end the word, "
                           "except in $LAYOUT: write a\n"
                           "comma between the word and what follows it.",
                           "$EVALUATION x",
                           "$EVALUATION, x"};

constexpr Rule missing = {
    "section-missing",
    Level::Error,
    "A section has no header.",
    "Every section must be there, in the fixed order, also when it is empty. Without its header the\n"
    "library reads on to the end of the file and refuses it.",
    "-$END",
    "$END"};

constexpr Rule order = {
    "section-order",
    Level::Error,
    "A section does not stand in its place.",
    "The sections stand in one fixed order: $VERSION, $LAYOUT, $VALUES, $DEPENDANCES, $EVALUATION,\n"
    "$INPUT, $OUTPUT, $END. A header in another place is read as a statement of the section above it.",
    "$DEPENDANCES\n    $VALUES",
    "$DEPENDANCES"};

void JudgeFalseHeaders(const Case& judged)
{
    for (const FalseHeader& header : judged.description.text.FalseHeaders())
    {
        const std::string word = WordOf(header.section);
        const bool isBlank = header.word.starts_with(word + " ");
        judged.findings.Add(misspelt, header.place, "\"" + header.word + "\" opens no section",
                            isBlank ? "a blank does not end the word; write \"" + word + ", " +
                                          header.word.substr(header.word.find_last_of(' ') + 1) + "\""
                                    : "did you mean \"" + word + "\"?");
    }
}

void JudgeMissing(const Case& judged)
{
    const DescriptionText& text = judged.description.text;
    for (const Section section : allSections)
    {
        if (text.HeaderOf(section) != nullptr)
            continue;
        const int last = text.Lines().empty() ? 1 : text.Lines().back().number;
        judged.findings.Add(missing, judged.description.PlaceOf(last),
                            std::string("the line \"") + WordOf(section) + "\" is missing",
                            "add it, also when its section is empty");
    }
}

void JudgeOrder(const Case& judged)
{
    Section above = Section::Head;
    for (const SourceLine& line : judged.description.text.Lines())
    {
        if (!line.isHeader)
            continue;
        const bool mayRepeat = line.section == Section::Input || line.section == Section::Output;
        if (line.section < above || (line.section == above && !mayRepeat && line.section != Section::Head))
            judged.findings.Add(order, judged.description.PlaceOf(line.number),
                                std::string("\"") + WordOf(line.section) + "\" stands after \"" + WordOf(above) + "\"",
                                "move the section to its place, or take the second header away");
        above = std::max(above, line.section);
    }
}

} // namespace

Family SectionRules()
{
    return {{&misspelt, &missing, &order},
            [](const Case& judged)
            {
                JudgeFalseHeaders(judged);
                JudgeMissing(judged);
                JudgeOrder(judged);
            }};
}

} // namespace lytdlg
