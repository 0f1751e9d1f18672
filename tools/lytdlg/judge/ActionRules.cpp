#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/PlacedValue.h"
#include "model/ClytWords.h"

#include <algorithm>
#include <functional>

namespace lytdlg
{

namespace
{

// A statement with short cuts to what its actions are judged by.
struct ActionLine : PlacedValue
{
    using PlacedValue::PlacedValue;

    const Description& Of() const { return judged.description; }
    std::string Value(size_t index) const { return index < value.values.size() ? value.values[index] : ""; }
    void Add(RuleName rule, size_t index, std::string message, std::string hint) const
    {
        judged.findings.Add(rule, PlaceOfValue(index), std::move(message), std::move(hint));
    }
    void Add(RuleName rule, size_t index, std::string message, const UnknownWord& word) const
    {
        AddUnknown(judged, rule, PlaceOfValue(index), std::move(message), word);
    }
};

using Takes = std::function<bool(const ClytType&)>;

// False when there is no such control, or when it does not take the action.
void JudgeTarget(const ActionLine& statement, size_t index, const Takes& takes, const char* what)
{
    const std::string name = statement.Value(index);
    const Kind kind = KindOfControl(statement.Of(), name);
    if (statement.Of().FindControl(name) == nullptr)
        statement.Add("action-target", index, "no control is called " + InQuotes(name) + "; a press does nothing",
                      UnknownWord{name, ControlNames(statement.Of()), "use the name of a control"});
    else if (kind != Kind::Unknown && !takes(lytTypeOf(kind)))
        statement.Add("action-kind", index,
                      InQuotes(name) + " is " + lytTypeOf(kind).name + ", and " + statement.value.keyword +
                          " does nothing to it",
                      std::string("use ") + what);
}

void JudgeGroup(const ActionLine& statement, size_t index)
{
    const std::string name = statement.Value(index);
    if (name.empty() || HasGroup(statement.Of(), name))
        return;
    const std::string message = "no output group is called " + InQuotes(name);
    if (HasPart(statement.Of(), name))
        statement.Add("action-group", index, message,
                      InQuotes(name) + " is an input part; name the output group that composes the text");
    else
        statement.Add("action-group", index, message,
                      UnknownWord{name, GroupNames(statement.Of()), "add \"$OUTPUT, " + name + "\" with its rules"});
}

void JudgePart(const ActionLine& statement, size_t index)
{
    const std::string name = statement.Value(index);
    if (name.empty() || HasPart(statement.Of(), name))
        return;
    const std::string message = "no input part is called " + InQuotes(name);
    if (HasGroup(statement.Of(), name))
        statement.Add("action-part", index, message,
                      InQuotes(name) + " is an output group; name the input part that takes the answer");
    else
        statement.Add("action-part", index, message,
                      UnknownWord{name, PartNames(statement.Of()), "add \"$INPUT, " + name + "\" with its statements"});
}

// The places of the two words, of which each is only what the other should be.
void JudgePartAndGroup(const ActionLine& statement, size_t part, size_t group, const char* order)
{
    const std::string partName = statement.Value(part);
    const std::string groupName = statement.Value(group);
    const bool isSwapped = !HasPart(statement.Of(), partName) && HasGroup(statement.Of(), partName) &&
                           !HasGroup(statement.Of(), groupName) && HasPart(statement.Of(), groupName);
    if (isSwapped)
    {
        const ClytSpan first = statement.PlaceOfValue(std::min(part, group));
        const ClytSpan second = statement.PlaceOfValue(std::max(part, group));
        Finding& finding =
            statement.judged.findings.Add("action-swapped", first,
                                          InQuotes(partName) + " is an output group and " + InQuotes(groupName) +
                                              " an input part: the two are swapped",
                                          statement.value.keyword + " takes " + order);
        if (!statement.Of().IsQuoted(first) && !statement.Of().IsQuoted(second))
            finding.FixSafely({first.line, first.column, second.column + second.length - first.column},
                              part < group ? groupName + ", " + partName : partName + ", " + groupName);
        return;
    }
    JudgePart(statement, part);
    JudgeGroup(statement, group);
}

void JudgeDialogFile(const ActionLine& statement)
{
    const std::string& folder = statement.judged.surroundings.folder;
    const std::string name = statement.Value(0);
    if (folder.empty())
        return;
    const std::vector<std::string>& names = statement.judged.surroundings.descriptions.Names();
    const auto isSame = [&](const std::string& known) { return IsSameName(known, name); };
    if (std::ranges::none_of(names, isSame))
        statement.Add("dialog-missing", 0, "the folder of the description has no file " + InQuotes(name + ".dlg"),
                      UnknownWord{name, names, "write the name of a description, without its extension"});
}

bool HasWords(const ActionLine& statement, size_t count, const char* form)
{
    if (statement.value.values.size() >= count)
        return true;
    statement.judged.findings.Add("action-words", statement.Of().PlaceOf(statement.value.span.line),
                                  statement.value.keyword + " needs " + std::to_string(count) + " words",
                                  "write " + InQuotes(statement.value.name + ": " + form));
    return false;
}

void JudgeDialog(const ActionLine& statement)
{
    JudgeDialogFile(statement);
    if (!HasWords(statement, 3, "DIALOG = FILE, PART, GROUP"))
        return;
    JudgePartAndGroup(statement, 1, statement.value.values.size() - 1,
                      "the input part first, and the output group after it");
}

bool IsLibraryFile(const std::string& name)
{
    return IsSameName(name.substr(name.find_last_of('.') + 1), "dll");
}

void JudgeCall(const ActionLine& statement)
{
    if (!HasWords(statement, 4, "ACTION = LIBRARY, FUNCTION, GROUP, PART"))
        return;
    const std::string library = statement.Value(1);
    if (IsLibraryFile(library) && !IsLibraryFile(statement.Value(0)))
        statement.judged.findings.Add("action-swapped", statement.PlaceOfValue(0),
                                      InQuotes(library) + " is the library, and belongs first",
                                      "write " + library + ", " + statement.Value(0));
    JudgePartAndGroup(statement, 3, 2, "the output group first, and the input part after it");
}

void JudgeAdd(const ActionLine& statement)
{
    if (!HasWords(statement, 2, "ADD = FROM, TO"))
        return;
    JudgeTarget(statement, 0, &ClytType::isOpenList, "a list or a check list");
    JudgeTarget(statement, statement.value.values.size() - 1, &ClytType::takesItems, "a list that is no check list");
}

void JudgeMove(const ActionLine& statement)
{
    const std::string name = statement.Value(0);
    JudgeTarget(statement, 0, &ClytType::hasItems, "a list");
    // The types whose items are kept in two orders are those that take them one by one.
    if (!lytTypeOf(KindOfControl(statement.Of(), name)).takesItems)
        return;
    const ControlFacts& facts = statement.Of().Index().FactsOf(name);
    statement.Add("action-order", 0, InQuotes(name) + " is no check list, and then shows one order and answers another",
                  facts.getsItemsFromInput || facts.getsItemsFromButton
                      ? "delete the button: a check list keeps its order, but takes no items from the input or a button"
                      : "name a check list, or make it a CheckListBox");
}

void JudgeFill(const ActionLine& statement)
{
    const std::string name = statement.Value(0);
    JudgeTarget(statement, 0, &ClytType::isFilled, "a list or a field");
    if (lytTypeOf(KindOfControl(statement.Of(), name)).isFilled &&
        LastStatementOf(statement.Of(), name, Role::Source) == nullptr)
        statement.Add("action-fill", 0, "no statement FILLEDBY says what fills " + InQuotes(name),
                      "add \"" + name + " = FILLEDBY, LIBRARY, FUNCTION, NEXT\" to $VALUES");
}

void JudgeAction(const ActionLine& statement)
{
    const std::string& word = statement.value.keyword;
    switch (lytMeaningOf<ClytAction>(word.c_str()))
    {
    case ClytAction::Visible:
    case ClytAction::Active: JudgeTarget(statement, 0, std::not_fn(&ClytType::isDefault), "another control"); break;
    case ClytAction::Add: JudgeAdd(statement); break;
    case ClytAction::Delete: JudgeTarget(statement, 0, &ClytType::hasItems, "a list"); break;
    case ClytAction::Up:
    case ClytAction::Down: JudgeMove(statement); break;
    case ClytAction::Fill: JudgeFill(statement); break;
    case ClytAction::Dialog: JudgeDialog(statement); break;
    case ClytAction::Action: JudgeCall(statement); break;
    case ClytAction::Reject: break;
    default:
        if (IsMeantAsOption(statement.value))
            break;
        AddUnknown(statement.judged, "action-unknown",
                   statement.Of().PlaceOf(statement.value.span.line, word.empty() ? statement.Value(0) : word),
                   word.empty() ? "this statement names no action" : InQuotes(word) + " is no action of a button",
                   {word, WordsOf<ClytAction>(),
                    "use VISIBLE, ACTIVE, ADD, DELETE, UP, DOWN, ACTION, REJECT, FILL or DIALOG"});
    }
}

void JudgeButton(const Case& judged, const ClytControlStatement& control)
{
    const Description& description = judged.description;
    const std::string name = control.name.GetString();
    if (KindOf(control) != Kind::Button || HasOption(description, name, ClytOption::Hidden) ||
        !StatementsOf(description, name, Role::Action).empty() || IsMeantElsewhere(description, name))
        return;
    judged.findings.Add("action-missing", description.PlaceOf(control.span.line),
                        (name.empty() ? "this button" : InQuotes(name)) + std::string(" has no action"),
                        "say in $VALUES what it does, as " + InQuotes((name.empty() ? "NAME" : name) + ": REJECT, x") +
                            " if only rules are to run");
}

void JudgeSource(const ActionLine& statement)
{
    const bool isField = statement.kind == Kind::Field;
    const std::string form = std::string("write FILLEDBY, LIBRARY, FUNCTION") + (isField ? "" : ", NEXT");
    const std::string third = statement.Value(2);
    if (statement.value.values.size() < (isField ? 2 : 3))
        statement.judged.findings.Add("source-words", statement.Of().PlaceOf(statement.value.span.line),
                                      "FILLEDBY needs the library and the names of its functions", form);
    // The group is the fourth word.
    else if (HasGroup(statement.Of(), third) && !HasGroup(statement.Of(), statement.Value(3)))
        statement.Add("source-words", 2, "a word is missing before the output group " + InQuotes(third),
                      form + (isField ? ", x, " : ", ") + third);
    else
        JudgeGroup(statement, 3);
}

void JudgeDoubleClick(const ActionLine& statement)
{
    const std::string name = statement.Value(0);
    const ClytControlStatement* control = statement.Of().FindControl(name);
    const Kind kind = KindOfControl(statement.Of(), name);
    if (name == lytTextOf(ClytValueWord::Ok) || kind == Kind::Button)
        return;
    statement.Add("double-click", 0,
                  control == nullptr
                      ? "no control is called " + InQuotes(name)
                      : InQuotes(name) + " is " + lytTypeOf(kind).name + ", and a double click does nothing to it",
                  UnknownWord{name, statement.Of().Index().ButtonNames(), "name a push button, or OK"});
}

} // namespace

void ApplyActionRules(const Case& judged)
{
    for (const ValueStatement& value : judged.description.values)
    {
        const ActionLine statement(judged, value);
        switch (statement.role)
        {
        case Role::Action: JudgeAction(statement); break;
        case Role::Source: JudgeSource(statement); break;
        case Role::DoubleClick: JudgeDoubleClick(statement); break;
        default: break;
        }
    }
    for (const ClytControlStatement& control : judged.description.controls)
        JudgeButton(judged, control);
}

} // namespace lytdlg
