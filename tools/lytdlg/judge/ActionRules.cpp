#include "lytdlg/judge/ActionRules.h"

#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/PlacedValue.h"
#include "model/ClytWords.h"

#include <algorithm>

namespace lytdlg
{

namespace
{
namespace action_rules
{

constexpr Rule unknownAction = {
    "action-unknown",
    Level::Warning,
    "A button's action is unknown, and a press does nothing.",
    "A button knows ten words, letter by letter: VISIBLE, ACTIVE, ADD, DELETE, UP, DOWN, ACTION,\n"
    "REJECT, FILL and DIALOG. With any other word only the rules run.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: Append = AllRooms, Rooms",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: ADD = AllRooms, Rooms"};

constexpr Rule noAction = {
    "action-missing",
    Level::Warning,
    "A button has no action, and a press does nothing.",
    "A statement of $VALUES says what a button does, as \"Add: ADD = AllRooms, Rooms\". Without one only the\n"
    "rules run: where that is meant, write \"NAME: REJECT, x\".",
    "$VALUES\n-Add: ADD = AllRooms, Rooms",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: REJECT, x"};

constexpr Rule target = {"action-target",
                         Level::Warning,
                         "A button acts on a control that is not there.",
                         "A target that is not the name of a control is passed over without a message.",
                         "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: ADD = AllRooms, Rooom",
                         "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: ADD = AllRooms, Rooms"};

constexpr Rule targetKind = {
    "action-kind",
    Level::Warning,
    "A button acts on a control of a type for which its action does nothing.",
    "ADD takes from a list or a check list and gives to any list; DELETE, UP and DOWN are for lists,\n"
    "FILL for lists and fields, VISIBLE and ACTIVE for everything but OK and Cancel.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: DELETE = Name",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: DELETE = AllRooms"};

constexpr Rule order = {"action-order",
                        Level::Warning,
                        "A button moves the items of a plain list.",
                        "After UP or DOWN a plain list shows one order and answers another. Take a check list.",
                        "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: UP = AllRooms",
                        "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: UP = Parts"};

constexpr Rule noSource = {
    "action-fill",
    Level::Warning,
    "A button fills a control without FILLEDBY.",
    "FILL asks the library that a statement FILLEDBY of $VALUES names. A list without one is only emptied.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: FILL = Rooms",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nRooms = FILLEDBY, lytdata, OpenList, NextItem\nAdd: FILL = Rooms"};

constexpr Rule words = {
    "action-words",
    Level::Warning,
    "An action lacks a word.",
    "DIALOG needs the file, the input part and the output group; ACTION the library, the function, the\n"
    "output group and the input part; ADD the list to take from and the one to give to.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: ADD = AllRooms",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: ADD = AllRooms, Rooms"};

constexpr Rule group = {
    "action-group",
    Level::Warning,
    "A statement names an output group that is not there.",
    "What a library or another dialog receives is composed by an output group. Without it a list stays\n"
    "empty, and a dialog does not open.",
    "$VALUES\nUnit = FILLEDBY, lytdata, LookUp, x, unit",
    "$VALUES\nUnit = FILLEDBY, lytdata, LookUp, x, unit\n$OUTPUT, unit\n(\"unit\")"};

constexpr Rule part = {
    "action-part",
    Level::Warning,
    "A button names an input part that is not there.",
    "What comes back from a function or another dialog is taken apart by an input part. Without it the\n"
    "answer is lost.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: DIALOG = other, Back, Out\n$OUTPUT, Out\n(\"a\")",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: DIALOG = other, Back, Out\n$OUTPUT, Out\n(\"a\")\n"
    "$INPUT, Back\nStart: (999, End = Name"};

constexpr Rule dialog = {
    "dialog-missing",
    Level::Warning,
    "A button opens a dialog whose file is not there.",
    "DIALOG names the file of another description, without its extension. It is looked for in the\n"
    "folder of the dialogs.",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: DIALOG = ohter, Back, Out\n$OUTPUT, Out\n(\"a\")\n"
    "$INPUT, Back\nStart: (999, End = Name",
    "$VALUES\n-Add: ADD = AllRooms, Rooms\nAdd: DIALOG = other, Back, Out\n$OUTPUT, Out\n(\"a\")\n"
    "$INPUT, Back\nStart: (999, End = Name"};

constexpr Rule doubleClick = {"double-click",
                              Level::Warning,
                              "A double click presses a button that is not there.",
                              "DBLCLICK names a push button, or OK. With another control only the rules run.",
                              "$VALUES\nAllRooms: DBLCLICK = Ad",
                              "$VALUES\nAllRooms: DBLCLICK = Add"};

constexpr Rule source = {
    "source-words",
    Level::Warning,
    "A statement FILLEDBY lacks a word.",
    "A field needs the library and the function, a list the library, the function that opens the list\n"
    "and the one for the next item. Without them nothing is filled, and there is no message.",
    "$VALUES\nRooms = FILLEDBY, lytdata, OpenList",
    "$VALUES\nRooms = FILLEDBY, lytdata, OpenList, NextItem"};

// A statement with short cuts to what its actions are judged by.
struct Statement : PlacedValue
{
    using PlacedValue::PlacedValue;

    const Description& Of() const { return judged.description; }
    std::string Value(size_t index) const { return index < value.values.size() ? value.values[index] : ""; }
    void Add(const Rule& rule, size_t index, std::string message, std::string hint) const
    {
        judged.findings.Add(rule, PlaceOfValue(index), std::move(message), std::move(hint));
    }
};

using Takes = bool (*)(Kind);

bool IsAny(Kind kind)
{
    return !IsDefault(kind);
}

// False when there is no such control, or when it does not take the action.
void JudgeTarget(const Statement& statement, size_t index, Takes takes, const char* what)
{
    const std::string name = statement.Value(index);
    const Kind kind = KindOfControl(statement.Of(), name);
    if (statement.Of().FindControl(name) == nullptr)
        statement.Add(target, index, "no control is called " + InQuotes(name) + "; a press does nothing",
                      MeantOr(name, ControlNames(statement.Of()), "use the name of a control"));
    else if (kind != Kind::Unknown && !takes(kind))
        statement.Add(targetKind, index,
                      InQuotes(name) + " is " + NameOf(kind) + ", and " + statement.value.keyword +
                          " does nothing to it",
                      std::string("use ") + what);
}

void JudgeGroup(const Statement& statement, size_t index)
{
    const std::string name = statement.Value(index);
    if (!name.empty() && !HasGroup(statement.Of(), name))
        statement.Add(group, index, "no output group is called " + InQuotes(name),
                      MeantOr(name, GroupNames(statement.Of()), "add \"$OUTPUT, " + name + "\" with its rules"));
}

void JudgePart(const Statement& statement, size_t index)
{
    const std::string name = statement.Value(index);
    if (!name.empty() && !HasPart(statement.Of(), name))
        statement.Add(part, index, "no input part is called " + InQuotes(name),
                      MeantOr(name, PartNames(statement.Of()), "add \"$INPUT, " + name + "\" with its statements"));
}

void JudgeDialogFile(const Statement& statement)
{
    const std::string& folder = statement.judged.surroundings.folder;
    const std::string name = statement.Value(0);
    if (folder.empty())
        return;
    const std::vector<std::string>& names = statement.judged.surroundings.descriptions.Names();
    const auto isSame = [&](const std::string& known) { return IsSameName(known, name); };
    if (std::ranges::none_of(names, isSame))
        statement.Add(dialog, 0, "the folder of the description has no file " + InQuotes(name + ".dlg"),
                      MeantOr(name, names, "write the name of a description, without its extension"));
}

bool HasWords(const Statement& statement, size_t count, const char* form)
{
    if (statement.value.values.size() >= count)
        return true;
    statement.judged.findings.Add(words, statement.Of().PlaceOf(statement.value.span.line),
                                  statement.value.keyword + " needs " + std::to_string(count) + " words",
                                  "write " + InQuotes(statement.value.name + ": " + form));
    return false;
}

void JudgeDialog(const Statement& statement)
{
    JudgeDialogFile(statement);
    if (!HasWords(statement, 3, "DIALOG = FILE, PART, GROUP"))
        return;
    JudgePart(statement, 1);
    JudgeGroup(statement, statement.value.values.size() - 1);
}

void JudgeCall(const Statement& statement)
{
    if (!HasWords(statement, 4, "ACTION = LIBRARY, FUNCTION, GROUP, PART"))
        return;
    JudgeGroup(statement, 2);
    JudgePart(statement, 3);
}

void JudgeAdd(const Statement& statement)
{
    if (!HasWords(statement, 2, "ADD = FROM, TO"))
        return;
    JudgeTarget(statement, 0, IsOpenList, "a list or a check list");
    JudgeTarget(statement, statement.value.values.size() - 1, HasItems, "a list");
}

void JudgeMove(const Statement& statement)
{
    JudgeTarget(statement, 0, HasItems, "a list");
    if (KindOfControl(statement.Of(), statement.Value(0)) == Kind::List)
        statement.Add(order, 0,
                      InQuotes(statement.Value(0)) + " is a plain list, which then shows one order and answers another",
                      "make it a CheckListBox");
}

void JudgeFill(const Statement& statement)
{
    const std::string name = statement.Value(0);
    JudgeTarget(statement, 0, IsFilledByLibrary, "a list or a field");
    if (IsFilledByLibrary(KindOfControl(statement.Of(), name)) &&
        LastStatementOf(statement.Of(), name, Role::Source) == nullptr)
        statement.Add(noSource, 0, "no statement FILLEDBY says what fills " + InQuotes(name),
                      "add \"" + name + " = FILLEDBY, LIBRARY, FUNCTION, NEXT\" to $VALUES");
}

void JudgeAction(const Statement& statement)
{
    const std::string& word = statement.value.keyword;
    switch (lytMeaningOf<ClytAction>(word.c_str()))
    {
    case ClytAction::Visible:
    case ClytAction::Active: JudgeTarget(statement, 0, IsAny, "another control"); break;
    case ClytAction::Add: JudgeAdd(statement); break;
    case ClytAction::Delete: JudgeTarget(statement, 0, HasItems, "a list"); break;
    case ClytAction::Up:
    case ClytAction::Down: JudgeMove(statement); break;
    case ClytAction::Fill: JudgeFill(statement); break;
    case ClytAction::Dialog: JudgeDialog(statement); break;
    case ClytAction::Action: JudgeCall(statement); break;
    case ClytAction::Reject: break;
    default:
        if (IsMeantAsOption(statement.value))
            break;
        statement.judged.findings.Add(
            unknownAction, statement.Of().PlaceOf(statement.value.span.line, word.empty() ? statement.Value(0) : word),
            word.empty() ? "this statement names no action" : InQuotes(word) + " is no action of a button",
            MeantOr(word, WordsOf<ClytAction>(),
                    "use VISIBLE, ACTIVE, ADD, DELETE, UP, DOWN, ACTION, REJECT, FILL or DIALOG"));
    }
}

void JudgeButton(const Case& judged, const ClytControlStatement& control)
{
    const Description& description = judged.description;
    const std::string name = control.name.GetString();
    if (KindOf(control) != Kind::Button || HasOption(description, name, ClytOption::Hidden) ||
        !StatementsOf(description, name, Role::Action).empty() || IsMeantElsewhere(description, name))
        return;
    judged.findings.Add(noAction, description.PlaceOf(control.span.line),
                        (name.empty() ? "this button" : InQuotes(name)) + std::string(" has no action"),
                        "say in $VALUES what it does, as " + InQuotes((name.empty() ? "NAME" : name) + ": REJECT, x") +
                            " if only rules are to run");
}

void JudgeSource(const Statement& statement)
{
    const size_t needed = statement.kind == Kind::Field ? 2 : 3;
    if (statement.value.values.size() < needed)
        statement.judged.findings.Add(source, statement.Of().PlaceOf(statement.value.span.line),
                                      "FILLEDBY needs the library and the names of its functions",
                                      statement.kind == Kind::Field ? "write FILLEDBY, LIBRARY, FUNCTION"
                                                                    : "write FILLEDBY, LIBRARY, FUNCTION, NEXT");
    JudgeGroup(statement, 3);
}

void JudgeDoubleClick(const Statement& statement)
{
    const std::string name = statement.Value(0);
    const ClytControlStatement* control = statement.Of().FindControl(name);
    const Kind kind = KindOfControl(statement.Of(), name);
    if (name == lytTextOf(ClytValueWord::Ok) || kind == Kind::Button)
        return;
    statement.Add(doubleClick, 0,
                  control == nullptr
                      ? "no control is called " + InQuotes(name)
                      : InQuotes(name) + " is " + NameOf(kind) + ", and a double click does nothing to it",
                  MeantOr(name, statement.Of().Index().ButtonNames(), "name a push button, or OK"));
}

} // namespace action_rules
} // namespace

Family ActionRules()
{
    using namespace action_rules;
    return {{&unknownAction, &noAction, &target, &targetKind, &order, &noSource, &words, &group, &part, &dialog,
             &doubleClick, &source},
            [](const Case& judged)
            {
                for (const ValueStatement& value : judged.description.values)
                {
                    const Statement statement(judged, value);
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
            }};
}

} // namespace lytdlg
