#include "lytdlg/judge/FillRules.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Fills.h"
#include "lytdlg/judge/Lists.h"

namespace lytdlg
{

namespace
{
namespace fill_rules
{

constexpr Rule fillUnknown = {"scan-fill",
                              Level::Warning,
                              "A piece goes to a control that is not there.",
                              "The fill is passed over without a message, and the piece is lost.",
                              "$INPUT, parent\n    Unit: (999, End = Uniit",
                              "$INPUT, parent\n    Unit: (999, End = Unit"};

constexpr Rule condition = {"scan-condition",
                            Level::Warning,
                            "A condition names a control that is not there.",
                            "Such a condition never holds, and the run goes on at the second of the two statements.",
                            "$INPUT, parent\n    Unit: Nmae(x) = Tail, Tail\n    Tail: (999, End = Unit",
                            "$INPUT, parent\n    Unit: Name(x) = Tail, Tail\n    Tail: (999, End = Unit"};

constexpr Rule conditionValue = {
    "scan-condition-value",
    Level::Warning,
    "A condition asks for a value that the control never has.",
    "Values are compared letter by letter. In $INPUT neither NULL nor NOTNULL means anything: write \"\" for\n"
    "an empty value.",
    "$INPUT, parent\n    Unit: Name(NULL) = End, Tail\n    Tail: (999, End = Unit",
    "$INPUT, parent\n    Unit: Name(\"\") = End, Tail\n    Tail: (999, End = Unit"};

constexpr Rule conditionValueless = {
    "scan-condition-valueless",
    Level::Warning,
    "A condition reads a control that has no value of its own.",
    "Fixed texts, frames and buttons have no value, and the library says so. An option always has its value:\n"
    "name the group.",
    "$INPUT, parent\n    Unit: Short(s) = End, Tail\n    Tail: (999, End = Unit",
    "$INPUT, parent\n    Unit: Order(s) = End, Tail\n    Tail: (999, End = Unit"};

constexpr Rule action = {"scan-action",
                         Level::Warning,
                         "A word in brackets after a control is no action.",
                         "The actions are FILL, ADD, MODIFY and CONCAT, in capitals. With any other word the piece "
                         "becomes the control's value.",
                         "$INPUT, parent\n    Unit: (999, End = Rooms(Concat, \"|\")",
                         "$INPUT, parent\n    Unit: (999, End = Rooms(CONCAT, \"|\")"};

constexpr Rule actionIdle = {
    "scan-action-idle",
    Level::Warning,
    "An action does nothing on a control of this type.",
    "FILL works on fields and lists, ADD and MODIFY on lists of every type, CONCAT on a ListBox or CheckListBox,\n"
    "and a value cannot be given to a text, a frame or a button.",
    "$INPUT, parent\n    Unit: (999, End = Form(CONCAT, \"|\")",
    "$INPUT, parent\n    Unit: (999, End = Rooms(CONCAT, \"|\")"};

constexpr Rule noSource = {
    "scan-fill-source",
    Level::Warning,
    "A control is filled by its library, but names none.",
    "FILL calls the library of the control's FILLEDBY statement.",
    "$INPUT, parent\n    Unit: (999, End = Parts(FILL)",
    "$VALUES\n    Parts = FILLEDBY, lytdata, OpenMarked, NextItem\n$INPUT, parent\n    Unit: (999, End = Parts(FILL)"};

constexpr Rule concatSeparators = {
    "scan-concat",
    Level::Warning,
    "CONCAT has more separators than it can take, and adds nothing.",
    "Up to two characters after CONCAT cut the piece into items. With more nothing is added.",
    "$INPUT, parent\n    Unit: (999, End = Rooms(CONCAT, \"|;/\")",
    "$INPUT, parent\n    Unit: (999, End = Rooms(CONCAT, \"|;\")"};

constexpr Rule fixedValue = {"scan-value",
                             Level::Warning,
                             "A fixed text is not a value of its control.",
                             "A list, a check box or an option group takes only the values that it has.",
                             "$INPUT, parent\n    Unit: (999, End = Unit, Order = x",
                             "$INPUT, parent\n    Unit: (999, End = Unit, Order = l"};

constexpr Rule listChoice = {
    "scan-list",
    Level::Warning,
    "An input cannot choose one of the last two items of a list.",
    "The search for the item of a ListBox or CheckListBox ends two items before the last. Use a DropListBox,\n"
    "which has no such limit, or add the piece with ADD or CONCAT.",
    "$LAYOUT Example\n    ListBox 520, 12, 100, 79, .Sides\n$VALUES\n    Sides: Hall = h\n    Sides: Bath = b\n    "
    "Sides: Attic = a\n"
    "$INPUT, parent\n    Unit: (999, End = Unit, Sides",
    "$LAYOUT Example\n    DropListBox 520, 12, 100, 79, .Sides\n$VALUES\n    Sides: Hall = h\n    Sides: Bath = b\n"
    "    Sides: Attic = a\n$INPUT, parent\n    Unit: (999, End = Unit, Sides"};

constexpr Rule listEmpty = {"scan-list-empty",
                            Level::Error,
                            "An input chooses an item of a list that has none.",
                            "A ListBox or CheckListBox without items cannot be given a value: the dialog ends with a "
                            "message of the class\nlibrary. Add the piece with ADD or CONCAT.",
                            "$INPUT, parent\n    Unit: (999, End = Unit, Parts",
                            "$INPUT, parent\n    Unit: (999, End = Unit, Parts(ADD)"};

constexpr Rule pair = {"scan-pair",
                       Level::Warning,
                       "A fill is skipped with the one before it.",
                       "When the condition of a fill does not hold, that fill and the next one are skipped. The two "
                       "are a pair: a second\ncondition right after it is never looked at, and a piece is lost.",
                       "$INPUT, parent\n    Unit: (999, End = (m)Form = round form, (mm)Form = square form",
                       "$INPUT, parent\n    Unit: (999, End = Unit, (m)Form = round form"};

bool TakesAction(Kind kind, ClytFillAction word)
{
    switch (word)
    {
    case ClytFillAction::Fill: return HasItems(kind) || kind == Kind::Field;
    case ClytFillAction::Add:
    case ClytFillAction::Modify: return HasItems(kind);
    case ClytFillAction::Concat: return IsOpenList(kind);
    default: return HasValue(kind);
    }
}

void JudgeAction(const Case& judged, const ClytControlFill& fill, Kind kind)
{
    const Description& description = judged.description;
    const std::string word = fill.action.GetText().GetString();
    const std::string name = fill.controlName.GetString();
    const ClytSpan place = description.PlaceOf(fill.span.line, word, fill.span.column + fill.span.length);
    if (fill.action.GetMeaning() == ClytFillAction::Other && !word.empty())
        judged.findings.Add(action, place,
                            InQuotes(word) + " is no action: the piece becomes the value of " + InQuotes(name),
                            MeantOr(word, WordsOf<ClytFillAction>(), "the actions are FILL, ADD, MODIFY and CONCAT"));
    else if (!TakesAction(kind, fill.action.GetMeaning()))
    {
        const std::string type = description.FindControl(name)->type.GetString();
        if (word.empty())
            judged.findings.Add(actionIdle, fill.span, "a " + type + " takes no value", "name a control that holds one")
                .number = "200";
        else
            judged.findings.Add(actionIdle, place, word + " does nothing on a " + type,
                                kind == Kind::Combo || kind == Kind::DropList ? "use ADD, or a ListBox or CheckListBox"
                                                                              : "name a list");
    }
    const std::string operands = (fill.operands[0] + fill.operands[1] + fill.operands[2]).GetString();
    if (fill.action.GetMeaning() == ClytFillAction::Concat && operands.size() > 2)
        judged.findings.Add(concatSeparators, place, "with more than two characters after it, CONCAT adds nothing",
                            "name one or two separators");
    if (fill.action.GetMeaning() == ClytFillAction::Fill && TakesAction(kind, ClytFillAction::Fill) &&
        LastStatementOf(description, name, Role::Source) == nullptr)
        judged.findings
            .Add(noSource, fill.span, InQuotes(name) + " has no FILLEDBY statement to fill it by", "add one to $VALUES")
            .number = HasItems(kind) ? "251" : "";
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
        judged.findings.Add(listEmpty, fill.span, "the list " + InQuotes(name) + " has no items to choose from",
                            "add the piece with ADD or CONCAT, or give the list items");
    else if (fill.value.IsEmpty() || chosen == places.end() || items.size() - chosen->second <= 2)
        judged.findings.Add(listChoice, fill.span,
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
    judged.findings.Add(fixedValue,
                        judged.description.PlaceOf(fill.span.line, value, fill.span.column + fill.span.length),
                        InQuotes(fill.controlName.GetString()) + " has no value " + InQuotes(value),
                        MeantOr(value, known, "give it one of the values that $VALUES names"));
}

void JudgeFill(const Case& judged, const InputPart& part, const ClytControlFill& fill)
{
    const std::string name = fill.controlName.GetString();
    const ClytControlStatement* control = judged.description.FindControl(name);
    // What a comment in the first line made of a name is told there.
    if (control == nullptr && name.find_first_of("\t;") == std::string::npos)
        judged.findings.Add(fillUnknown, fill.span,
                            "there is no control " + InQuotes(name) + ", and so the piece is lost",
                            MeantOr(name, ControlNames(judged.description), "name a control of $LAYOUT"));
    if (control == nullptr || KindOf(*control) == Kind::Unknown)
        return;
    const Kind kind = KindOf(*control);
    JudgeAction(judged, fill, kind);
    JudgeFixedValue(judged, fill, *control);
    if (IsOpenList(kind) && fill.action.GetText().IsEmpty())
        JudgeChoice(judged, part, fill);
}

void JudgeFills(const Case& judged, const InputPart& part, const ClytScanRule& rule)
{
    const ClytConditionFill* before = nullptr; // a condition that takes the next fill along
    for (const ClytConditionFill* present : Records(rule.rules))
    {
        for (const ClytControlFill* fill : Records(present->fills))
            JudgeFill(judged, part, *fill);
        const bool isConditional = !present->values.IsEmpty();
        if (before != nullptr && (isConditional || TakesPiece(*present->fills.GetHead())))
            judged.findings.Add(pair, present->span, "this fill is skipped when the condition before it does not hold",
                                isConditional ? "put an unconditional fill between the two, or use two statements"
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
            judged.findings.Add(condition, asked->GetSpan(),
                                "there is no control " + InQuotes(name) + ", and so it never holds",
                                MeantOr(name, ControlNames(judged.description), "name a control of $LAYOUT"));
        JudgeValues(judged, conditionValue, *asked, ValueWords::None);
        JudgeReadControl(judged, conditionValueless, name, asked->GetSpan());
    }
}

} // namespace fill_rules
} // namespace

Family FillRules()
{
    using namespace fill_rules;
    return {{&fillUnknown, &condition, &conditionValue, &conditionValueless, &action, &actionIdle, &noSource,
             &concatSeparators, &fixedValue, &listChoice, &listEmpty, &pair},
            [](const Case& judged)
            {
                for (const InputPart& part : judged.description.inputs)
                {
                    for (const ClytDialogInput* statement : Records(part.part.GetStatements()))
                    {
                        if (judged.description.IsRefused(statement->span.line))
                            continue;
                        JudgeConditions(judged, *statement);
                        JudgeFills(judged, part, statement->scanRule);
                    }
                }
            }};
}

} // namespace lytdlg
