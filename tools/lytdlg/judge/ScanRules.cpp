#include "lytdlg/judge/ScanRules.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Controls.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/ScanPaths.h"

#include <algorithm>
#include <unordered_map>

namespace lytdlg
{

namespace
{
namespace scan_rules
{

constexpr Rule startMissing = {"scan-start",
                               Level::Warning,
                               "A part has no statement `Start`.",
                               "A run begins at the statement Start. Without it the text is not taken apart at all.",
                               "$INPUT, parent\n-Start: (\";\", Unit = Name\n    start: (\";\", Unit = Name",
                               "$INPUT, parent\n    Start: (\";\", Unit = Name"};

constexpr Rule partTwice = {"scan-part-twice",
                            Level::Warning,
                            "Two parts have the same name, and the first is never run.",
                            "Of parts with the same name the last counts.",
                            "$INPUT,  parent\n    Start: (999, End = Name",
                            "$INPUT, parent\n    Start: (999, End = Name\n-Unit: (999, End = Unit"};

constexpr Rule partUnused = {
    "scan-part-unused",
    Level::Note,
    "No button runs the part.",
    "A part other than parent is run by a button with DIALOG or ACTION that names it.",
    "$INPUT, Back\n    Start: (999, End = Name",
    "$LAYOUT Example\n    PushButton 520, 12, 96, 21, \"Remove\", .More\n$VALUES\n    More: DIALOG = other, Back, Out\n"
    "$INPUT, Back\n    Start: (999, End = Name\n$OUTPUT, Out\n    (\"%s\", Name)"};

constexpr Rule nameTwice = {"scan-twice",
                            Level::Warning,
                            "Two statements of a part have the same name, and the first is never run.",
                            "Of statements with the same name the last counts.",
                            "$INPUT, parent\n    Unit : (999, End = Unit",
                            "$INPUT, parent\n    Unit: (999, End = Unit"};

constexpr Rule unreached = {"scan-unreached",
                            Level::Warning,
                            "No statement leads here.",
                            "A run begins at Start and goes where the statements lead it.",
                            "$INPUT, parent\n    Extra: (\",\", Unit = Name",
                            "$INPUT, parent\n    Start: (\";\", Extra = Name\n    Extra: (\",\", Unit = Name"};

constexpr Rule target = {
    "scan-target",
    Level::Warning,
    "A statement leads to one that is not there.",
    "The run ends there without a message, and the rest of the text is lost. Only End is meant to do\n"
    "that.",
    "$INPUT, parent\n    Unit: (\")\", Edn = Unit",
    "$INPUT, parent\n    Unit: (\")\", End = Unit"};

constexpr Rule circle = {"scan-circle",
                         Level::Error,
                         "Statements go round in a circle and cut nothing.",
                         "Such a run ends with a message. A round of statements must cut something off the text, and "
                         "at the end of the\ntext there is nothing left to cut: let it end there.",
                         "$INPUT, parent\n    Unit: (1, Unit = Unit",
                         "$INPUT, parent\n    Unit: (999, End = Unit"};

constexpr Rule circleMaybe = {"scan-circle-condition",
                              Level::Warning,
                              "Statements may go round in a circle, as the controls are filled.",
                              "Between statements that only decide where to go on, no control changes: once they go "
                              "round they do so for ever,\nwhich ends with message 206.",
                              "$INPUT, parent\n    Unit: Name(x) = End, Unit",
                              "$INPUT, parent\n    Unit: Name(x) = End, Tail\n    Tail: (999, End = Unit"};

constexpr Rule firstLine = {
    "scan-first-line",
    Level::Warning,
    "In the line after a header neither a tab nor a `;` separates.",
    "What looks like a comment becomes part of the last name. Begin a part with a comment line.",
    "$INPUT, parent\n    Start: (\";\", Unit = Name ; up to the semicolon",
    "$INPUT, parent\n    ; up to the semicolon\n    Unit: (999, End = Unit"};

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
        if (meaning == ClytAction::Dialog && statement.values.size() > 1)
            used.insert(statement.values[1]);
        else if (meaning == ClytAction::Action && statement.values.size() > 3)
            used.insert(statement.values[3]);
    }
    return used;
}

void JudgeParts(const Case& judged)
{
    const std::set<std::string> used = UsedParts(judged.description);
    const auto& parts = judged.description.inputs;
    const bool hasParent = HasPart(judged.description, lytParentName);
    std::unordered_map<std::string, const InputPart*> last;
    for (const InputPart& part : parts)
        last[part.name] = &part;
    for (const InputPart& part : parts)
    {
        const ClytSpan place = judged.description.PlaceOf(part.header.line);
        const InputPart* later = last[part.name];
        if (later != &part)
            judged.findings.Add(partTwice, place,
                                "the part " + InQuotes(part.name) + " in line " + std::to_string(later->header.line) +
                                    " takes the place of this one",
                                "give each part a name of its own");
        else if (!used.contains(part.name) && hasParent)
            judged.findings.Add(partUnused, place, "no button runs the part " + InQuotes(part.name),
                                "name it in a button's DIALOG or ACTION, or delete it");
    }
}

// How statements lead to one another.

void JudgeStart(const Case& judged, const InputPart& part)
{
    const std::vector<std::string> names = StatementNames(part.part);
    if (names.empty() || part.part.Find(lytStartName) != nullptr)
        return;
    const auto meant =
        std::ranges::find_if(names, [](const std::string& name) { return !MeantOr(name, {lytStartName}, "").empty(); });
    const ClytSpan place = meant != names.end() ? part.part.Find(meant->c_str())->span : part.header;
    judged.findings.Add(startMissing, judged.description.PlaceOf(place.line, meant != names.end() ? *meant : ""),
                        "the part " + InQuotes(part.name) + " has no statement \"Start\", so its run ends at once",
                        meant != names.end() ? "did you mean \"Start\"?" : "call the first statement \"Start\"");
}

ClytSpan NamePlace(const ClytDialogInput& statement)
{
    return {statement.span.line, statement.span.column, statement.name.GetLength()};
}

// Whether a target is misspelt: it may be the one that leads to what nothing else does.
bool HasMisspeltTarget(const Case& judged, const InputPart& part)
{
    const std::vector<std::string> known = StatementNames(part.part);
    for (const ClytDialogInput* statement : Records(part.part.GetStatements()))
    {
        for (const ScanTarget& next : TargetsOf(judged.description, *statement))
        {
            if (!IsTarget(part.part, next.name) && !MeantWord(next.name, known).empty())
                return true;
        }
    }
    return false;
}

void JudgeReached(const Case& judged, const InputPart& part)
{
    const std::set<const ClytDialogInput*> reached = Reached(judged.description, part.part);
    const bool isMisspelt = HasMisspeltTarget(judged, part);
    for (const ClytDialogInput* statement : Records(part.part.GetStatements()))
    {
        const ClytDialogInput* found = part.part.Find(statement->name);
        const std::string name = InQuotes(statement->name.GetString());
        if (found != statement)
            judged.findings.Add(nameTwice, NamePlace(*statement),
                                "the statement " + name + " in line " + LineOf(*found) + " takes the place of this one",
                                "give each statement of a part a name of its own");
        else if (!reached.empty() && !reached.contains(statement) && !isMisspelt)
            judged.findings.Add(unreached, NamePlace(*statement), "no statement leads to " + name,
                                "name it as a target, or delete it");
    }
}

void JudgeTargets(const Case& judged, const InputPart& part, const ClytDialogInput& statement,
                  const std::vector<std::string>& known)
{
    for (const ScanTarget& next : TargetsOf(judged.description, statement))
    {
        if (IsTarget(part.part, next.name))
            continue;
        if (next.name.empty())
            judged.findings.Add(target, NamePlace(statement),
                                "the statement names none to go on with, and so the run ends",
                                "write End where the run is to end");
        else
            judged.findings.Add(target, next.place,
                                "no statement is called " + InQuotes(next.name) + ", and so the run ends",
                                MeantOr(next.name, known, "write End where the run is to end"));
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
    for (const ScanCircle& found : CirclesOf(judged.description, part.part))
    {
        const Rule& rule = found.hasConditions ? circleMaybe : circle;
        const std::string when = found.hasConditions ? ", when the controls hold what leads there"
                                 : found.isAtEnd     ? " at the end of the text"
                                                     : "";
        judged.findings
            .Add(rule, NamePlace(*found.statements.front()),
                 "the run goes round in a circle" + when + ": " + WayOf(found),
                 found.isAtEnd ? "cut at separators and let the end of the text end the run, or lead to End"
                               : "let one of these statements cut something, or lead to End")
            .number = "206";
    }
}

// The next line of the section that is read; null after its last.
const SourceLine* LineAfter(const DescriptionText& text, int number)
{
    for (auto index = static_cast<size_t>(number); index < text.Lines().size(); ++index)
    {
        const SourceLine& line = text.Lines()[index];
        if (line.isRead && !line.isStray && line.section == Section::Input)
            return &line;
    }
    return nullptr;
}

// Where a tab or a `;` stands after a word and outside quotes; npos when none does.
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
    judged.findings.Add(firstLine, {first->number, static_cast<int>(place), 1},
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
    std::vector<std::string> known = StatementNames(part.part);
    known.emplace_back("End");
    for (const ClytDialogInput* statement : Records(part.part.GetStatements()))
        JudgeTargets(judged, part, *statement, known);
}

} // namespace scan_rules
} // namespace

Family ScanRules()
{
    using namespace scan_rules;
    return {
        {&startMissing, &partTwice, &partUnused, &nameTwice, &unreached, &target, &circle, &circleMaybe, &firstLine},
        [](const Case& judged)
        {
            JudgeParts(judged);
            for (const InputPart& part : judged.description.inputs)
            {
                JudgeStart(judged, part);
                JudgeFirstLine(judged, part);
                if (IsWhole(judged.description, part))
                    JudgePaths(judged, part);
            }
        }};
}

} // namespace lytdlg
