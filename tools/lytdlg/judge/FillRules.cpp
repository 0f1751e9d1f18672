#include "lytdlg/judge/Families.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"

namespace lytdlg
{

namespace
{

// The way out for a check list, which the input cannot fill.
constexpr const char* makeItAList = "make it a ListBox, or let a library fill it with FILLEDBY and FILL";

bool TakesAction(Kind kind, ClytFillAction word)
{
    switch (word)
    {
    case ClytFillAction::Fill: return lytTypeOf(kind).isFilled;
    case ClytFillAction::Add: return lytTypeOf(kind).takesItems;
    case ClytFillAction::Modify: return lytTypeOf(kind).hasItems;
    case ClytFillAction::Concat: return lytTypeOf(kind).isOpenList;
    default: return lytTypeOf(kind).hasValue;
    }
}

void JudgeAction(const Case& judged, const ClytControlFill& fill, Kind kind)
{
    const Description& description = judged.description;
    const std::string word = fill.action.GetText().GetString();
    const std::string name = fill.controlName.GetString();
    const ClytSpan place = description.PlaceOf(fill.span.line, word, fill.span.column + fill.span.length);
    if (fill.action.GetMeaning() == ClytFillAction::Other && !word.empty())
        AddUnknown(judged, "scan-action", place,
                   InQuotes(word) + " is no action: the piece becomes the value of " + InQuotes(name),
                   {word, WordsOf<ClytFillAction>(), "the actions are FILL, ADD, MODIFY and CONCAT"});
    else if (!TakesAction(kind, fill.action.GetMeaning()))
    {
        const std::string type = description.FindControl(name)->type.GetString();
        if (word.empty())
            judged.findings
                .Add("scan-action-idle", fill.span, "a " + type + " takes no value", "name a control that holds one")
                .number = lytError("ValueNotTaken");
        else
            judged.findings.Add("scan-action-idle", place, word + " does nothing on a " + type,
                                kind == Kind::Combo || kind == Kind::DropList ? "use ADD, or a ListBox"
                                : kind == Kind::CheckList                     ? makeItAList
                                                                              : "name a list");
    }
    const std::string operands = (fill.operands[0] + fill.operands[1] + fill.operands[2]).GetString();
    if (fill.action.GetMeaning() == ClytFillAction::Concat && operands.size() > 2)
        judged.findings.Add("scan-concat", place, "with more than two characters after it, CONCAT adds nothing",
                            "name one or two separators");
    if (fill.action.GetMeaning() == ClytFillAction::Concat && lytTypeOf(kind).hasMarks &&
        description.Index().IsListed(name))
        judged.findings.Add("scan-concat-marks", place,
                            "a check list gets the items of CONCAT in reverse order and all marked, and their marks "
                            "become part of them",
                            makeItAList);
    if (fill.action.GetMeaning() == ClytFillAction::Fill && TakesAction(kind, ClytFillAction::Fill) &&
        LastStatementOf(description, name, Role::Source) == nullptr)
        judged.findings
            .Add("scan-fill-source", fill.span, InQuotes(name) + " has no FILLEDBY statement to fill it by",
                 "add one to $VALUES")
            .number = lytTypeOf(kind).hasItems ? lytError("LibraryNotNamed") : "";
}

// Whether an input, a rule or a button asks the control's library.
bool IsEverFilled(const Description& description, const std::string& name)
{
    const auto isFill = [&](const ClytDialogInput* statement)
    {
        return std::ranges::any_of(Records(statement->scanRule.rules),
                                   [&](const ClytConditionFill* rule)
                                   {
                                       const ClytControlFill& fill = *rule->fills.GetHead();
                                       return name == fill.controlName.GetString() &&
                                              (fill.action.GetMeaning() == ClytFillAction::Fill ||
                                               lytMeans<ClytValueWord::Fill>(fill.value));
                                   });
    };
    const auto isPressed = [&](const ValueStatement& statement) {
        return lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Fill &&
               statement.values.front() == name;
    };
    return std::ranges::any_of(description.inputs, [&](const InputPart& part)
                               { return std::ranges::any_of(Records(part.part->GetStatements()), isFill); }) ||
           std::ranges::any_of(
               Records(description.rules), [&](const ClytControlDep* rule)
               { return name == rule->controlName.GetString() && rule->stateWord.GetMeaning() == ClytState::Fill; }) ||
           std::ranges::any_of(description.values, isPressed);
}

void JudgeUnfilled(const Case& judged, const ClytControlFill& fill, const ClytControlStatement& control)
{
    const std::string name = fill.controlName.GetString();
    if (TakesPiece(fill) && fill.action.GetMeaning() == ClytFillAction::Other && KindOf(control) == Kind::DropList &&
        LastStatementOf(judged.description, name, Role::Source) != nullptr && !IsEverFilled(judged.description, name))
        judged.findings.Add("scan-unfilled", fill.span,
                            InQuotes(name) + " has no items to choose from: nothing fills it by its library",
                            "write " + name + "(FILL) among the fills of Start");
}

// An open list that has at that time the items of $VALUES alone: no button was pressed when the dialog opens.
void JudgeChoice(const Case& judged, const InputPart& part, const ClytControlFill& fill)
{
    const std::string name = fill.controlName.GetString();
    const bool isOpening = part.name == lytParentName;
    if (isOpening ? GetsItemsOnOpening(judged.description, name) : GetsItems(judged.description, name))
        return;
    const std::vector<const ValueStatement*>& items = StatementsOf(judged.description, name, Role::Item);
    const auto& places = judged.description.Index().FactsOf(name).places;
    const auto chosen = places.find(fill.value.GetString());
    if (items.empty())
        judged.findings.Add("scan-list-empty", fill.span, "the list " + InQuotes(name) + " has no items to choose from",
                            KindOfControl(judged.description, name) == Kind::CheckList
                                ? makeItAList
                                : "add the piece with ADD or CONCAT");
    else if (fill.value.IsEmpty() || chosen == places.end() || items.size() - chosen->second <= 2)
        judged.findings.Add("scan-list", fill.span,
                            "an input cannot choose the last two items of " + InQuotes(name) +
                                (items.size() <= 2 ? ", and it has no others" : ""),
                            "make it a DropListBox, which has no such limit");
}

void JudgeFixedValue(const Case& judged, const ClytControlFill& fill, const ClytControlStatement& control)
{
    const std::optional<std::set<std::string>>& possible = judged.description.Index().PossibleValuesOf(control);
    const bool isTaken = fill.value.IsEmpty() || lytMeans<ClytValueWord::Fill>(fill.value);
    if (!possible || isTaken || fill.action.GetMeaning() != ClytFillAction::Other)
        return;
    const std::string value = fill.value.GetString();
    const bool isMark = KindOf(control) == Kind::CheckBox && (value == "ON" || value == "OFF");
    if (isMark || possible->contains(value))
        return;
    std::vector<std::string> known;
    if (possible->size() <= mostCandidates)
        known.assign(possible->begin(), possible->end());
    std::erase(known, "");
    if (KindOf(control) == Kind::CheckBox)
        known.insert(known.end(), {"ON", "OFF"});
    AddUnknown(judged, "scan-value",
               judged.description.PlaceOf(fill.span.line, value, fill.span.column + fill.span.length),
               InQuotes(fill.controlName.GetString()) + " has no value " + InQuotes(value),
               {value, known, "give it one of the values that $VALUES names"});
}

bool HasItems(const Description& description, const std::string& name)
{
    return !StatementsOf(description, name, Role::Item).empty() || description.Index().FactsOf(name).getsItemsFromInput;
}

// A combo box with items keeps its choice when it is given a text that none of them has.
void JudgeOwnText(const Case& judged, const ClytControlFill& fill, bool isAddedBefore)
{
    const Description& description = judged.description;
    const std::string name = fill.controlName.GetString();
    const bool isValue = fill.action.GetText().IsEmpty() && !lytMeans<ClytValueWord::Fill>(fill.value);
    if (!isValue || !HasItems(description, name))
        return;
    if (fill.value.IsEmpty() && !isAddedBefore)
        judged.findings.Add("scan-combo", fill.span,
                            "a text that is no item of " + InQuotes(name) + " shows in its field, and is lost",
                            "write " + name + "(ADD), " + name + ", or make it a DropListBox");
    else if (!fill.value.IsEmpty() && !description.Index().FactsOf(name).getsItemsFromInput &&
             !description.Index().FactsOf(name).places.contains(fill.value.GetString()))
        judged.findings.Add("scan-combo", fill.span,
                            InQuotes(fill.value.GetString()) + " is no item of " + InQuotes(name) + ", and is lost",
                            "give it one of the values that $VALUES names");
}

void JudgeFill(const Case& judged, const InputPart& part, const ClytControlFill& fill, bool isAddedBefore)
{
    const std::string name = fill.controlName.GetString();
    const ClytControlStatement* control = judged.description.FindControl(name);
    // What a comment in the first line made of a name is reported there.
    if (control == nullptr && name.find_first_of("\t;") == std::string::npos)
        AddUnknown(judged, "scan-fill", fill.span,
                   "there is no control " + InQuotes(name) + ", and so the piece is lost",
                   {name, ControlNames(judged.description), "name a control of $LAYOUT"});
    if (control == nullptr || KindOf(*control) == Kind::Unknown)
        return;
    const Kind kind = KindOf(*control);
    JudgeAction(judged, fill, kind);
    JudgeFixedValue(judged, fill, *control);
    if (lytTypeOf(kind).isOpenList && fill.action.GetText().IsEmpty())
        JudgeChoice(judged, part, fill);
    if (part.name == lytParentName)
        JudgeUnfilled(judged, fill, *control);
    if (kind == Kind::Combo)
        JudgeOwnText(judged, fill, isAddedBefore);
}

void JudgeFills(const Case& judged, const InputPart& part, const ClytScanRule& rule)
{
    const ClytConditionFill* before = nullptr; // a condition that takes the next fill along
    std::set<std::string> added;               // the controls that have the piece as an item by then
    for (const ClytConditionFill* present : Records(rule.rules))
    {
        for (const ClytControlFill* fill : Records(present->fills))
        {
            const std::string name = fill->controlName.GetString();
            JudgeFill(judged, part, *fill, added.contains(name));
            if (fill->action.GetMeaning() == ClytFillAction::Add)
                added.insert(name);
        }
        const bool isConditional = !present->values.IsEmpty();
        if (before != nullptr && (isConditional || TakesPiece(*present->fills.GetHead())))
            judged.findings.Add("scan-pair", present->span,
                                "this fill is skipped when the condition before it does not hold",
                                isConditional ? "put a fill with a fixed text between the two, or use two statements"
                                              : "put it before the condition");
        before = before == nullptr && isConditional ? present : nullptr;
    }
}

void JudgeConditions(const Case& judged, const ClytDialogInput& statement)
{
    for (const ClytCtrlValList* asked : Records(statement.conditions))
    {
        const std::string name = asked->GetName().GetString();
        if (judged.description.FindControl(name) == nullptr)
            AddUnknown(judged, "scan-condition", asked->GetSpan(),
                       "there is no control " + InQuotes(name) + ", and so it never holds",
                       {name, ControlNames(judged.description), "name a control of $LAYOUT"});
        JudgeValues(judged, "scan-condition-value", *asked, ValueWords::None);
        JudgeReadControl(judged, "scan-condition-valueless", name, asked->GetSpan());
    }
}

} // namespace

void ApplyFillRules(const Case& judged)
{
    for (const InputPart& part : judged.description.inputs)
    {
        for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
        {
            if (judged.description.IsRefused(statement->span.line))
                continue;
            JudgeConditions(judged, *statement);
            JudgeFills(judged, part, statement->scanRule);
        }
    }
}

} // namespace lytdlg
