#include "lytdlg/judge/Families.h"

#include "commandline/CommandLine.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

// What the library shows at a line that it reads as a statement of the section above; nothing where it may pass as one.
std::string NumberWithin(Section above)
{
    return above == Section::Values ? "" : lytError("LineForm");
}

void JudgeFalseHeaders(const Case& judged)
{
    for (const FalseHeader& header : judged.description.text.FalseHeaders())
    {
        // Free text may be above the version.
        if (header.section == Section::Head && judged.description.text.HeaderOf(Section::Head) != nullptr)
            continue;
        const std::string word = lytWordOf(header.section);
        const bool isBlank = header.word.starts_with(word + " ");
        const bool isTab = header.word.starts_with(word + "\t");
        Finding& finding =
            judged.findings.Add("section-misspelt", header.place, "\"" + header.word + "\" opens no section",
                                (isBlank || isTab ? std::string(isBlank ? "a blank" : "a tab") +
                                                        " does not end the word; write \"" + header.meant + "\""
                                                  : "did you mean \"" + header.meant + "\"?"));
        finding.FixSafely(judged.description.PlaceOf(header.place.line), header.meant);
        finding.number = header.present != Section::Head     ? NumberWithin(header.present)
                         : header.section == Section::Layout ? lytError("LayoutMissing")
                                                             : lytError("VersionMissing");
    }
}

bool HasHeader(const DescriptionText& text, Section section)
{
    const bool isThere =
        text.HeaderOf(section) != nullptr && (section <= Section::Layout || !text.BeginsWithoutHeader(section));
    return isThere || std::ranges::any_of(text.FalseHeaders(),
                                          [&](const FalseHeader& header) { return header.section == section; });
}

// Where the first section after a missing one begins; the last line that holds anything when none does.
int LineAfter(const DescriptionText& text, Section section)
{
    int last = 1;
    for (const SourceLine& line : text.Lines())
    {
        if (line.isRead && line.section >= section)
            return line.number;
        if (line.text.find_first_not_of(" \t") != std::string::npos)
            last = line.number;
    }
    return last;
}

std::string NumberOfMissing(const DescriptionText& text, Section section)
{
    if (section == Section::Head && HasHeader(text, Section::Layout))
        return lytError("VersionMissing");
    if (section <= Section::Layout)
        return lytError("LayoutMissing");
    // What follows is read as statements of the section above, and it depends on them what that comes to.
    const auto isBelow = [&](const SourceLine& line) { return line.isRead && line.section >= section; };
    if (std::ranges::any_of(text.Lines(), isBelow))
        return "";
    return section == Section::Values ? lytError("ControlsOpen") : lytError("EndTooSoon");
}

// The header as it is when it begins a section with nothing special about it; the layout needs the name of its texts.
std::string PlainHeader(Section section)
{
    switch (section)
    {
    case Section::Head: return "$VERSION 1";
    case Section::Evaluation: return "$EVALUATION, x";
    case Section::Input: return "$INPUT, parent";
    case Section::Output: return "$OUTPUT, parent";
    case Section::Layout: return "";
    default: return lytWordOf(section);
    }
}

// Where the section ends that has no header is known when another one follows it, or the end of the file.
void FixMissing(const DescriptionText& text, Section first, Finding& finding)
{
    std::string headers;
    Section section = first;
    for (; !HasHeader(text, section); section = static_cast<Section>(static_cast<int>(section) + 1))
    {
        if (PlainHeader(section).empty())
            return;
        headers += PlainHeader(section) + "\n";
        if (section == Section::End)
            break;
    }
    const bool isAbove =
        std::ranges::any_of(text.Lines(), [&](const SourceLine& line) { return line.isRead && line.section >= first; });
    const std::string& line = text.Line(finding.place.line).text;
    if (isAbove)
        finding.FixPerhaps({finding.place.line, 0, 0}, headers);
    else
        finding.FixSafely({finding.place.line, static_cast<int>(line.size()), 0},
                          "\n" + headers.substr(0, headers.size() - 1));
}

// Sections that are missing side by side have one finding.
void JudgeMissing(const Case& judged)
{
    const DescriptionText& text = judged.description.text;
    bool isAboveMissing = false;
    for (const Section section : allSections)
    {
        const bool isMissing = !HasHeader(text, section);
        const bool isFirst = isMissing && !isAboveMissing;
        isAboveMissing = isMissing;
        if (!isFirst)
            continue;
        std::string names;
        int count = 0;
        for (Section each = section; !HasHeader(text, each); each = static_cast<Section>(static_cast<int>(each) + 1))
        {
            names += (count++ == 0 ? "\"" : "\", \"") + std::string(lytWordOf(each));
            if (each == Section::End)
                break;
        }
        Finding& finding = judged.findings.Add("section-missing", judged.description.PlaceOf(LineAfter(text, section)),
                                               count == 1 ? "the line " + names + "\" is missing"
                                                          : "the lines " + names + "\" are missing",
                                               "every section must be there, also when it is empty");
        finding.number = NumberOfMissing(text, section);
        FixMissing(text, section, finding);
    }
}

void AddStray(const Case& judged, const SourceLine& line)
{
    const std::vector<LineToken> words = TokensOf(line.text, line.section);
    const bool isValue = line.section == Section::Values && words.size() > 1;
    const ClytSpan place = judged.description.PlaceOf(line.number);
    const std::string message = "the header \"" + words.front().text + "\" is inside the section " +
                                std::string(lytWordOf(line.section)) + " and opens nothing";
    if (isValue)
        judged.findings.Add("header-in-values", place, message, "delete the line").FixSafely(place, "");
    else
        judged.findings.Add("section-order", place, message, "delete the line, or move the section to its place")
            .FixPerhaps(place, "")
            .number = lytError("LineForm");
}

// The line of the last header of each section.
std::map<Section, int> LastHeaders(const DescriptionText& text)
{
    std::map<Section, int> lines;
    for (const SourceLine& line : text.Lines())
    {
        if (line.isHeader)
            lines[line.section] = line.number;
    }
    return lines;
}

void JudgeOrder(const Case& judged)
{
    const DescriptionText& text = judged.description.text;
    const std::map<Section, int> last = LastHeaders(text);
    Section above = Section::Head;
    for (const SourceLine& line : text.Lines())
    {
        if (line.isStray)
            AddStray(judged, line);
        if (!line.isHeader)
            continue;
        // A section between the two that comes only below this line.
        const auto skipped = std::ranges::find_if(
            last, [&](const auto& header)
            { return header.first > above && header.first < line.section && header.second > line.number; });
        if (skipped != last.end())
            judged.findings
                .Add("section-order", judged.description.PlaceOf(line.number),
                     std::string("\"") + lytWordOf(line.section) + "\" comes before \"" + lytWordOf(skipped->first) +
                         "\"",
                     "move the section to its place")
                .number = NumberWithin(above);
        else
            above = std::max(above, line.section);
    }
}

Finding& AddDialogLine(const Case& judged, const ClytSpan& place, const char* number, std::string message)
{
    Finding& finding = judged.findings.Add("dialog-header", place, std::move(message),
                                           "write: Begin Dialog Box WIDTH, HEIGHT, \"TITLE\", .NAME");
    finding.number = number;
    return finding;
}

// The words that begin the dialog, as far as they are there.
void FixDialogWords(const Description& description, const std::vector<LineToken>& words, Finding& finding)
{
    const size_t size = words.size();
    const bool isBox = size > 2 && commandline::IsClose(words[2].text, "Box");
    const bool isMeant = size > 1 && commandline::IsClose(words[0].text, "Begin") &&
                         commandline::IsClose(words[1].text, "Dialog") && size == (isBox ? 7 : 6);
    const int line = description.dialogHeader.line;
    const int end = isMeant ? isBox ? words[3].column : words[2].column : 0;
    if (isMeant)
        finding.FixSafely({line, words[0].column, end - words[0].column}, "Begin Dialog Box ");
}

void JudgeDialogLine(const Case& judged)
{
    const Description& description = judged.description;
    if (!HasHeader(description.text, Section::Layout) || description.dialogHeader.line == 0)
        return;
    const int line = description.dialogHeader.line;
    const std::vector<LineToken> words = TokensOf(description.text.Line(line).text, Section::Layout);
    const ClytSpan place = description.PlaceOf(line);
    if (words.empty() || words[0].text != "Begin")
    {
        const bool isMeant = !words.empty() && commandline::IsClose(words[0].text, "Begin");
        FixDialogWords(description, words,
                       AddDialogLine(judged, place, lytError("DialogMissing"),
                                     isMeant ? "\"" + words[0].text + "\" does not begin a dialog"
                                             : "the line \"Begin Dialog\" is missing before this one"));
    }
    else if (!description.hasDialogHeader)
        FixDialogWords(description, words,
                       AddDialogLine(judged, description.PlaceOf(line, words[1].text, words[1].column),
                                     lytError("DialogForm"),
                                     "\"" + words[1].text + "\" is used where \"Dialog\" is required"));
    else if (std::ranges::any_of(description.mistakes, [&](const Mistake& mistake)
                                 { return mistake.place.line == line && mistake.number == lytError("LineForm"); }))
        FixDialogWords(description, words,
                       AddDialogLine(judged, place, lytError("LineForm"),
                                     "the line has " + std::to_string(words.size()) +
                                         (words.size() == 1 ? " word" : " words") + ", and not seven"));
}

void JudgeHeaderWords(const Case& judged)
{
    const Description& description = judged.description;
    const bool hasTexts =
        !description.title.empty() || std::ranges::any_of(description.controls, [](const ClytControlStatement& control)
                                                          { return !control.text.IsEmpty(); });
    const auto lacksWord = [&](const SourceLine* header, const std::vector<std::string>& words)
    { return header != nullptr && words.empty() && !description.IsRefused(header->number); };
    const SourceLine* layout = description.text.HeaderOf(Section::Layout);
    if (lacksWord(layout, description.layoutWords) && hasTexts)
        judged.findings.Add("layout-without-texts", description.PlaceOf(layout->number),
                            "$LAYOUT names no text section, and so title and captions stay empty",
                            "name the section of the language file, as in \"$LAYOUT Symbol\"");
    const SourceLine* evaluation = description.text.HeaderOf(Section::Evaluation);
    if (lacksWord(evaluation, description.evaluationWords))
        judged.findings
            .Add("evaluation-without-word", description.PlaceOf(evaluation->number), "a word must follow $EVALUATION",
                 "any word will do: write \"$EVALUATION, x\"")
            .FixSafely({evaluation->number, 0, static_cast<int>(evaluation->text.size())}, "$EVALUATION, x")
            .number = lytError("HeaderForm");
}

void JudgeParent(const Case& judged)
{
    const Description& description = judged.description;
    if (description.inputs.empty() ||
        std::ranges::any_of(description.inputs, [](const InputPart& part) { return part.name == "parent"; }))
        return;
    const auto meant = std::ranges::find_if(description.inputs, [](const InputPart& part)
                                            { return commandline::IsClose(part.name, "parent"); });
    const InputPart& part = meant != description.inputs.end() ? *meant : description.inputs.front();
    const ClytSpan place = description.PlaceOf(part.header.line, part.name, static_cast<int>(sizeof "$INPUT") - 1);
    Finding& finding = judged.findings.Add(
        "input-parent", place, "no input part is named \"parent\", and so the dialog does not open",
        meant != description.inputs.end() ? "did you mean \"parent\"?"
                                          : "add \"$INPUT, parent\" with the statements that begin");
    finding.number = lytError("EndTooSoon");
    if (meant != description.inputs.end() && place.length == static_cast<int>(part.name.size()))
        finding.FixSafely(place, "parent");
}

} // namespace

void ApplySectionRules(const Case& judged)
{
    JudgeFalseHeaders(judged);
    JudgeMissing(judged);
    JudgeOrder(judged);
    JudgeDialogLine(judged);
    JudgeHeaderWords(judged);
    JudgeParent(judged);
}

} // namespace lytdlg
