#include "lytdlg/judge/Families.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/ScanPaths.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace lytdlg
{

namespace
{

std::string LineOf(const ClytDialogInput& statement)
{
    return std::to_string(statement.span.line);
}

std::vector<std::string> StatementNames(const ClytInputPart& part)
{
    std::vector<std::string> names;
    for (const ClytDialogInput* statement : Records(part.GetStatements()))
        names.emplace_back(statement->name.GetString());
    return names;
}

bool IsTarget(const ClytInputPart& part, const std::string& name)
{
    return name == "End" || part.Find(name.c_str()) != nullptr;
}

// Parts.

// The names of the parts that buttons run.
std::set<std::string> UsedParts(const Description& description)
{
    std::set<std::string> used = {lytParentName};
    for (const ValueStatement& statement : description.values)
    {
        const auto meaning = lytMeaningOf<ClytAction>(statement.keyword.c_str());
        // The group that is named with it may be in its place: that is reported there.
        if (meaning == ClytAction::Dialog && statement.values.size() > 1)
            used.insert(statement.values.begin() + 1, statement.values.end());
        else if (meaning == ClytAction::Action && statement.values.size() > 3)
            used.insert(statement.values.begin() + 2, statement.values.end());
        // Where words are missing, it may be any of them.
        if (LacksWords(meaning, statement.values.size()))
            std::ranges::copy(PartNames(description), std::inserter(used, used.end()));
    }
    return used;
}

void JudgeParts(const Case& judged)
{
    const std::set<std::string> used = UsedParts(judged.description);
    const auto& parts = judged.description.inputs;
    const bool hasParent = HasPart(judged.description, lytParentName);
    std::unordered_map<std::string, const InputPart*> met;
    for (const InputPart& part : parts)
    {
        const ClytSpan place = judged.description.PlaceOf(part.header.line);
        const InputPart* before = std::exchange(met[part.name], &part);
        if (before != nullptr)
            judged.findings.Add("scan-part-twice", place,
                                "this part takes the place of the part " + InQuotes(part.name) + " in line " +
                                    std::to_string(before->header.line),
                                "delete one of them, or give it another name that a button uses");
        else if (!used.contains(part.name) && hasParent && !IsNamedWhereSwitchedOff(judged.description, part.name))
            judged.findings.Add("scan-part-unused", place, "no button runs the part " + InQuotes(part.name),
                                "name it in a button's DIALOG or ACTION, or delete it");
    }
}

// How statements lead to one another.

void JudgeStart(const Case& judged, const InputPart& part)
{
    const std::vector<std::string> names = StatementNames(*part.part);
    if (names.empty() || part.part->Find(lytStartName) != nullptr)
        return;
    const auto meant =
        std::ranges::find_if(names, [](const std::string& name) { return !MeantOr(name, {lytStartName}, "").empty(); });
    const ClytSpan place = meant != names.end() ? part.part->Find(meant->c_str())->span : part.header;
    Finding& finding =
        judged.findings.Add("scan-start", judged.description.PlaceOf(place.line, meant != names.end() ? *meant : ""),
                            "the part " + InQuotes(part.name) + " has no statement \"Start\", so its run ends at once",
                            meant != names.end() ? "did you mean \"Start\"?" : "call the first statement \"Start\"");
    if (meant != names.end())
        FixWord(judged, finding, {*meant, {lytStartName}, ""});
}

ClytSpan NamePlace(const ClytDialogInput& statement)
{
    return {statement.span.line, statement.span.column, statement.name.GetLength()};
}

// Whether a target is misspelt: it may be the one that leads to what nothing else does.
bool HasMisspeltTarget(const Case& judged, const InputPart& part)
{
    const std::vector<std::string> known = StatementNames(*part.part);
    for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
    {
        for (const ScanTarget& next : TargetsOf(judged.description, *statement))
        {
            if (!IsTarget(*part.part, next.name) && !MeantWord(next.name, known).empty())
                return true;
        }
    }
    return false;
}

void JudgeReached(const Case& judged, const InputPart& part)
{
    const std::set<const ClytDialogInput*> reached = Reached(judged.description, *part.part);
    const bool isMisspelt = HasMisspeltTarget(judged, part);
    std::unordered_map<std::string, const ClytDialogInput*> met;
    for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
    {
        const std::string name = InQuotes(statement->name.GetString());
        const ClytDialogInput* before = std::exchange(met[statement->name.GetString()], statement);
        if (before != nullptr)
            judged.findings.Add("scan-twice", NamePlace(*statement),
                                "this statement takes the place of " + name + " in line " + LineOf(*before),
                                "delete one of them, or give it another name that a statement leads to");
        else if (part.part->Find(statement->name) == statement && !reached.empty() && !reached.contains(statement) &&
                 !isMisspelt && !IsNamedWhereSwitchedOff(judged.description, statement->name.GetString()))
            judged.findings.Add("scan-unreached", NamePlace(*statement), "no statement leads to " + name,
                                "name it as a target, or delete it");
    }
}

void JudgeTargets(const Case& judged, const InputPart& part, const ClytDialogInput& statement,
                  const std::vector<std::string>& known)
{
    for (const ScanTarget& next : TargetsOf(judged.description, statement))
    {
        if (IsTarget(*part.part, next.name))
            continue;
        if (next.name.empty())
            judged.findings.Add("scan-target", NamePlace(statement),
                                "the statement names no next statement, and so the run ends",
                                "write End where the run is to end");
        else
            AddUnknown(judged, "scan-target", next.place,
                       "no statement is called " + InQuotes(next.name) + ", and so the run ends",
                       {next.name, known, "write End where the run is to end"});
    }
}

std::string WayOf(const ScanCircle& found)
{
    constexpr size_t mostNamed = 12;
    const size_t named = std::min(mostNamed, found.statements.size());
    std::string way;
    for (size_t index = 0; index < named; ++index)
        way += InQuotes(found.statements[index]->name.GetString()) + " -> ";
    if (named < found.statements.size())
        way += std::to_string(found.statements.size() - named) + " more -> ";
    return way + InQuotes(found.statements.front()->name.GetString());
}

void JudgeCircles(const Case& judged, const InputPart& part)
{
    for (const ScanCircle& found : CirclesOf(judged.description, *part.part))
    {
        const RuleName rule = found.hasConditions ? RuleName("scan-circle-condition") : RuleName("scan-circle");
        const std::string when = found.hasConditions ? ", when the controls hold what leads there"
                                 : found.isAtEnd     ? " at the end of the text"
                                                     : "";
        judged.findings
            .Add(rule, NamePlace(*found.statements.front()),
                 "the run goes round in a circle" + when + ": " + WayOf(found),
                 found.isAtEnd ? "cut at separators and let the end of the text end the run, or lead to End"
                               : "let one of these statements cut something, or lead to End")
            .number = lytError("ReadingFailed");
    }
}

// The next line of the section that is read; null after its last.
const SourceLine* LineAfter(const DescriptionText& text, int number)
{
    const std::vector<SourceLine>& lines = text.Lines();
    const auto next = std::find_if(lines.begin() + number, lines.end(),
                                   [](const SourceLine& line)
                                   { return line.isRead && !line.isStray && line.section == Section::Input; });
    return next != lines.end() ? &*next : nullptr;
}

// Where a tab or a `;` comes after a word and outside quotes; npos without one.
size_t FindNoDelimiter(const std::string& line)
{
    bool isQuoted = false;
    bool isAfterWord = false;
    for (size_t place = 0; place < line.size(); ++place)
    {
        const char ch = line[place];
        if (ch == '"')
            isQuoted = !isQuoted;
        const bool isBlank = ch == ' ' || ch == '\t';
        const bool isSign = !isQuoted && (ch == ';' || ch == '\t') && isAfterWord;
        if (isSign && (ch == ';' || line.find_first_not_of(" \t,=:()", place) != std::string::npos))
            return place;
        if (!isQuoted && ch == ';' && !isAfterWord)
            return std::string::npos;
        if (!isBlank)
            isAfterWord = std::string(",=:()").find(ch) == std::string::npos || isQuoted;
    }
    return std::string::npos;
}

void JudgeFirstLine(const Case& judged, const InputPart& part)
{
    const SourceLine* first = LineAfter(judged.description.text, part.header.line);
    if (first == nullptr || first->isHeader)
        return;
    const size_t place = FindNoDelimiter(first->text);
    if (place == std::string::npos)
        return;
    const std::string sign = first->text[place] == ';' ? "`;`" : "tab";
    judged.findings.Add("scan-first-line", {first->number, static_cast<int>(place), 1},
                        "in the line after a header a " + sign + " does not separate: it belongs to the word before it",
                        "put a comment line between the header and this line");
}

// A line that is refused leads nowhere, and says nothing about the others.
bool IsWhole(const Description& description, const InputPart& part)
{
    for (const SourceLine* line = LineAfter(description.text, part.header.line); line != nullptr && !line->isHeader;
         line = LineAfter(description.text, line->number))
    {
        if (description.IsRefused(line->number))
            return false;
    }
    return true;
}

void JudgePaths(const Case& judged, const InputPart& part)
{
    JudgeReached(judged, part);
    JudgeCircles(judged, part);
    std::vector<std::string> known = StatementNames(*part.part);
    known.emplace_back("End");
    for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
        JudgeTargets(judged, part, *statement, known);
}

} // namespace

void ApplyScanRules(const Case& judged)
{
    JudgeParts(judged);
    for (const InputPart& part : judged.description.inputs)
    {
        JudgeStart(judged, part);
        JudgeFirstLine(judged, part);
        if (IsWhole(judged.description, part))
            JudgePaths(judged, part);
    }
}

} // namespace lytdlg
