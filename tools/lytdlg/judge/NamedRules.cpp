// What the calls that open the named dialogs pass to them, and what they look for in the answer.
#include "lytdlg/judge/Families.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/FormatPieces.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/NamedDialog.h"
#include "tree/ClytWizardQueue.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// In the place of a value that is not known before the dialog runs.
constexpr char someValue = '\x01';

// What a rule of the output composes: the letters that it writes, and values.
struct Answer
{
    std::string text;
    std::vector<const ClytOutputItem*> values; // in the order of their places
};

void AddItem(const Description& description, const ClytOutputItem& item, Answer& answer)
{
    if (description.FindControl(item.text.GetString()) == nullptr)
    {
        answer.text += item.text.GetString();
        return;
    }
    // Of the separators of a list the second comes before the items and the third after them.
    const std::string separators = item.action.GetString();
    const bool hasEnds = !lytMeans<ClytFillAction::Concat>(item.action);
    answer.text += hasEnds ? separators.substr(std::min<size_t>(separators.size(), 1), 1) : "";
    answer.text += someValue;
    answer.text += hasEnds ? separators.substr(std::min<size_t>(separators.size(), 2), 1) : "";
    answer.values.push_back(&item);
}

Answer AnswerOf(const Description& description, const ClytDialogOutput& rule)
{
    const std::string format = rule.format.GetString();
    Answer answer;
    size_t place = 0;
    size_t taken = 0;
    for (const FormatPiece& piece : PiecesOf(format))
    {
        if (!TakesItem(piece.kind))
            continue;
        answer.text += format.substr(place, piece.start - place);
        place = piece.start + piece.length;
        if (taken < rule.items.size())
            AddItem(description, rule.items[taken++], answer);
    }
    answer.text += format.substr(place);
    return answer;
}

// A rule of the result, as the call takes it.
struct AnsweringRule
{
    const Case& judged;
    const ClytNamedDialog& named;
    const ClytDialogOutput& rule;
    Answer answer;
    // The input cuts the brackets off, so that no value holds them.
    bool dropsBegin = false;
    bool dropsEnd = false;

    Finding& Add(RuleName id, std::string message, std::string hint) const
    {
        return judged.findings.Add(id, judged.description.PlaceOf(rule.span.line), std::move(message), std::move(hint));
    }
};

bool CutsAt(const ClytDialogInput& statement, char sign)
{
    return std::ranges::any_of(Records(statement.scanRule.scan.GetSeparators()), [&](const ClytSeparator* separator)
                               { return separator->text.IsEmpty() || separator->text[0] == sign; });
}

bool CutsAt(const Description& description, char sign)
{
    const auto cuts = [&](const ClytDialogInput* statement) { return CutsAt(*statement, sign); };
    return std::ranges::any_of(
        description.inputs, [&](const InputPart& part)
        { return part.name == lytParentName && std::ranges::any_of(Records(part.part->GetStatements()), cuts); });
}

// ---- The answer of a group

// Whether a value may begin so: a field does with what $VALUES gives it.
bool MayBeginWith(const Description& description, const ClytOutputItem& value, const std::string& text)
{
    const std::string name = value.text.GetString();
    const ClytControlStatement& control = *description.FindControl(name);
    const auto begins = [&](const std::string& known) { return known.starts_with(text); };
    if (const std::optional<std::set<std::string>>& known = description.Index().PossibleValuesOf(control))
        return std::ranges::any_of(*known, begins);
    const ValueStatement* first = LastStatementOf(description, name, Role::Default);
    return KindOf(control) != Kind::Field || (first != nullptr && begins(first->values.front()));
}

// Whether the mark is at the place, with what values hold of it. The bracket may be in one that the input has left it in.
bool HasMark(const AnsweringRule& given, size_t place)
{
    const std::string& text = given.answer.text;
    if (text[place] != ')' && !(text[place] == someValue && !given.dropsEnd))
        return false;
    auto value = given.answer.values.begin() +
                 std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place) + 1, someValue);
    const std::string mark = lytGroupMark;
    for (size_t index = 1; index < mark.size(); ++index)
    {
        if (place + index >= text.size())
            return false;
        const char ch = text[place + index];
        if (ch == someValue)
            return MayBeginWith(given.judged.description, **value, mark.substr(index));
        if (ch != mark[index])
            return false;
    }
    return true;
}

void FixLackingMark(const AnsweringRule& given, Finding& finding)
{
    const std::string format = given.rule.format.GetString();
    const std::string quoted = InQuotes(format);
    const ClytSpan place = given.judged.description.PlaceOf(given.rule.span.line, quoted, given.rule.span.column);
    if (format.ends_with(lytGroupMark[0]) && place.length == static_cast<int>(quoted.size()))
        finding.FixPerhaps({place.line, place.column + place.length - 1, 0},
                           given.named.which == ClytNamed::Condition ? "/1COND" : "/1REPT");
}

size_t FindMark(const AnsweringRule& given)
{
    size_t place = 0;
    while (place < given.answer.text.size() && !HasMark(given, place))
        ++place;
    return place < given.answer.text.size() ? place : std::string::npos;
}

// The three letters of the key take the place of what is there.
void JudgeKeptLetters(const AnsweringRule& given, size_t second)
{
    const std::string text = given.answer.text.substr(second);
    for (int index = 0; index < std::min(static_cast<int>(text.size()), lytKeptLettersEnd); ++index)
    {
        const char ch = text[static_cast<size_t>(index)];
        const bool isLost = index >= lytKeptLettersBegin && ch != ' ';
        if (ch != someValue && !isLost)
            continue;
        given.Add("macro-loss", "three letters of the key take the place of the sixth to eighth letter after the \"/\"",
                  "keep these places free: \")/1REPT   ;\" and then what is to be kept");
        return;
    }
}

void JudgeGroupAnswer(const AnsweringRule& given)
{
    const std::string& text = given.answer.text;
    const size_t mark = FindMark(given);
    const size_t bracket = text.find('(');
    if (mark == std::string::npos)
        FixLackingMark(given, given.Add("macro-answer",
                                        std::string("the macros look for \"") + lytGroupMark +
                                            "\" in the answer, and without it the placeholder loses its bracket",
                                        "end the bracket with \")/1\" and the text for the macros"));
    else if (bracket > mark && (given.dropsBegin || text.front() != someValue))
        given.Add("macro-answer",
                  "the macros look for \"(\" in the answer, and without it the placeholder loses its bracket",
                  "begin the answer with \"(\"");
    // A group on a condition may be handed the whole key.
    else if (bracket != 0 && bracket < mark && given.named.which == ClytNamed::Repetition)
        given.Add("macro-loss", "what comes before the \"(\" is lost: the document keeps the head of the placeholder",
                  "begin the answer with \"(\"");
    if (mark != std::string::npos && text.substr(mark + 1, 2) == lytGroupMark + 1)
        JudgeKeptLetters(given, mark + 2);
}

// ---- The answer of a group of the wizard

void JudgeJoint(const AnsweringRule& given, const ClytOutputItem& list)
{
    const bool isBlank = lytMeans<ClytFillAction::Concat>(list.action);
    if (list.action.IsEmpty() || (!isBlank && list.action[0] == lytListSeparator))
        return;
    Finding& finding = given.judged.findings.Add(
        "macro-loss", list.span,
        "these texts are joined by " + InQuotes(isBlank ? " " : std::string(1, list.action[0])) +
            ", and are inserted as one",
        "join them with \"|\": " + std::string(list.text.GetString()) + "(\"|\")");
    const std::string quoted = InQuotes(list.action.GetString());
    const ClytSpan place = given.judged.description.PlaceOf(list.span.line, quoted, list.span.column);
    if (place.length == static_cast<int>(quoted.size()))
        finding.FixPerhaps({place.line, place.column + 1, 1}, std::string(1, lytListSeparator));
}

void JudgeTextsAnswer(const AnsweringRule& given)
{
    const std::string& text = given.answer.text;
    const size_t mark = text.find(lytListMark);
    const size_t brace = mark != std::string::npos ? text.find(lytListBegin, mark) : mark;
    if (brace == std::string::npos)
    {
        given.Add("macro-answer",
                  std::string("the wizard looks for \"") + lytListMark +
                      "\" and \"{\" in the answer, and cuts it there",
                  "write \"/LIST{\" between the head of the group and the texts to insert");
        return;
    }
    const auto before = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(brace), someValue);
    for (auto value = given.answer.values.begin() + before; value != given.answer.values.end(); ++value)
        JudgeJoint(given, **value);
    if (text.back() == lytListSeparator)
        given.Add("macro-loss", "the last text is lost when the list ends in \"|\"", "leave out the last \"|\"");
    else if (text.back() == '}')
        given.Add("macro-loss", "the \"}\" becomes a part of the last text to insert", "leave out the \"}\"");
}

// ---- What is handed over

// The fill of `Start` that takes the first piece; null where none does, and where `Start` asks for a control.
const ClytControlFill* FirstTaken(const ClytDialogInput& start)
{
    for (const ClytConditionFill* rule : Records(start.scanRule.rules))
    {
        for (const ClytControlFill* fill : Records(rule->fills))
        {
            if (TakesPiece(*fill))
                return fill;
        }
    }
    return nullptr;
}

// Whether `Start` hands more than what comes before the sign to a control.
const ClytControlFill* TakenWith(const ClytInputPart& part, char sign)
{
    constexpr int longEnough = 2;
    const ClytDialogInput* start = part.Find(lytStartName);
    if (start == nullptr || !start->conditions.IsEmpty() || CutsAt(*start, sign))
        return nullptr;
    const int length = start->scanRule.scan.GetLength();
    return sign == '(' || length == 0 || length >= longEnough ? FirstTaken(*start) : nullptr;
}

void JudgeBracketInput(const Case& judged, const ClytInputPart& part, bool isWritten)
{
    const ClytControlFill* fill = TakenWith(part, '(');
    if (fill != nullptr && isWritten)
        judged.findings.Add("macro-input", fill->span,
                            "the bracket that is handed over goes into " + InQuotes(fill->controlName.GetString()) +
                                ", and the answer writes another",
                            "begin with a statement that cuts it off: Start: (\"(\", NEXT)");
}

void JudgeEntryInput(const Case& judged, const ClytInputPart& part)
{
    const ClytControlFill* fill = TakenWith(part, '/');
    if (fill == nullptr || CutsAt(judged.description, '/'))
        return;
    const std::string name = fill->controlName.GetString();
    Finding& finding = judged.findings.Add("macro-input", fill->span,
                                           "key and label are handed over with a \"/\" between them, and go into " +
                                               InQuotes(name) + " together",
                                           "cut between them: Start: (\"/\", NEXT = " + name);
    const auto separators = Records(part.Find(lytStartName)->scanRule.scan.GetSeparators());
    if (separators.size() == 1)
        finding.FixPerhaps(separators.front()->span, "/");
}

void JudgeLabelInput(const Case& judged, const ClytInputPart& part)
{
    const ClytDialogInput* start = part.Find(lytStartName);
    if (start == nullptr)
        return;
    for (const ClytSeparator* separator : Records(start->scanRule.scan.GetSeparators()))
    {
        if (separator->text == "/")
            judged.findings.Add("macro-input", separator->span,
                                "the label of a heading is handed over without a key before it",
                                "take the whole text: Start: (999, End = CONTROL");
    }
}

void JudgeInput(const Case& judged, const ClytNamedDialog& named, const ClytInputPart& part, bool writesBracket)
{
    switch (named.handed)
    {
    case ClytHanded::Key: break;
    case ClytHanded::Bracket: JudgeBracketInput(judged, part, writesBracket); break;
    case ClytHanded::Entry: JudgeEntryInput(judged, part); break;
    case ClytHanded::Label: JudgeLabelInput(judged, part); break;
    }
}

} // namespace

void ApplyNamedRules(const Case& judged)
{
    const ClytNamedDialog* named = NamedDialogOf(judged.description.path);
    if (named == nullptr)
        return;
    bool writesBracket = false;
    for (const OutputGroup& group : judged.description.outputs)
    {
        if (group.name != lytParentName)
            continue;
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            const AnsweringRule given{judged,
                                      *named,
                                      *rule,
                                      AnswerOf(judged.description, *rule),
                                      CutsAt(judged.description, '('),
                                      CutsAt(judged.description, ')')};
            if (given.answer.text.empty() || judged.description.IsRefused(rule->span.line))
                continue;
            writesBracket = writesBracket || given.answer.text.front() == '(';
            if (named->cut == ClytCut::AtMark)
                JudgeGroupAnswer(given);
            else if (named->cut == ClytCut::IntoTexts)
                JudgeTextsAnswer(given);
        }
    }
    for (const InputPart& part : judged.description.inputs)
    {
        if (part.name == lytParentName)
            JudgeInput(judged, *named, *part.part, writesBracket);
    }
}

} // namespace lytdlg
