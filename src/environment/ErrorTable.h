// The numbered errors: every number of the section of errors in a language file, once. Sources write the name, as in
// `lytRaise(lytError("LineForm"))`. The compiler looks it up, so that the library holds the number alone, and refuses a
// name that is not in the table.
#pragma once

#include <string_view>

// How an error meets the user.
enum class ClytErrorWay
{
    Raised,   // it ends the operation
    Reported, // its message is shown, and the operation continues
    Either,   // one or the other, depending on the control
    Above     // no error: its text comes above another message
};

struct ClytErrorRow
{
    const char* number; // the key of its text
    const char* name;
    ClytErrorWay way;
    const char* argument; // what its text names between apostrophes; empty for nothing
    const char* about;
};

// Their section in a language file.
inline constexpr const char* lytErrorSection = "Dialog_Error";

inline constexpr ClytErrorRow lytErrors[] = {
    {"200", "ValueNotTaken", ClytErrorWay::Reported, "", "a rule sets a control that takes no value"},
    {"201", "ValueMissing", ClytErrorWay::Reported, "", "a rule reads a control that has no value"},
    {"202", "WindowNotMade", ClytErrorWay::Raised, "control", "the window of a control was not made"},
    {"204", "HeaderForm", ClytErrorWay::Raised, "", "the line `$LAYOUT` or `$EVALUATION` is incomplete"},
    {"205", "DialogForm", ClytErrorWay::Raised, "", "the line `Begin Dialog` has another second word"},
    {"206", "ReadingFailed", ClytErrorWay::Raised, "",
     "a text or a file cannot be read, or a scan goes round in a circle"},
    {"207", "OpeningFailed", ClytErrorWay::Raised, "file", "a file cannot be opened"},
    {"208", "WritingFailed", ClytErrorWay::Raised, "log", "the log cannot be written"},
    {"209", "ClosingFailed", ClytErrorWay::Raised, "log", "the log or a description cannot be closed"},
    {"210", "QuoteOpen", ClytErrorWay::Raised, "", "a quotation mark is not closed"},
    {"212", "LineForm", ClytErrorWay::Raised, "line", "a line of the description has the wrong form"},
    {"213", "VersionMissing", ClytErrorWay::Raised, "", "`$LAYOUT` comes before `$VERSION`"},
    {"214", "LayoutMissing", ClytErrorWay::Raised, "", "the description ends without a line `$LAYOUT`"},
    {"215", "DialogMissing", ClytErrorWay::Raised, "", "no line `Begin Dialog` follows `$LAYOUT`"},
    {"216", "ControlsOpen", ClytErrorWay::Raised, "", "the description ends in its list of controls"},
    {"217", "EndTooSoon", ClytErrorWay::Raised, "word", "the description ends too soon, or lacks a part of its input"},
    {"222", "ChoiceRefused", ClytErrorWay::Reported, "", "the browser's choice is not of the kind asked for"},
    {"232", "FunctionMissing", ClytErrorWay::Raised, "", "a library lacks the function of an action"},
    {"233", "LibraryMissing", ClytErrorWay::Raised, "library", "the library of an action cannot be loaded"},
    {"234", "LastItemDown", ClytErrorWay::Reported, "", "the last item is to be moved down"},
    {"235", "FirstItemUp", ClytErrorWay::Either, "", "the first item is to be moved up"},
    {"236", "BoxText", ClytErrorWay::Raised, "control", "a check box starts with neither of its texts"},
    {"238", "ActionFailed", ClytErrorWay::Above, "", "an action has failed"},
    {"240", "Resolution", ClytErrorWay::Raised, "", "the resolution of the screen is not known"},
    {"241", "BracketOpen", ClytErrorWay::Raised, "", "a bracket of a text for a list lacks its partner"},
    {"242", "ListText", ClytErrorWay::Above, "", "a text for a list is wrong"},
    {"245", "OutputControl", ClytErrorWay::Raised, "control", "an output rule names a control that is not there"},
    {"246", "ResultFailed", ClytErrorWay::Raised, "", "the result cannot be made"},
    {"247", "ActionUnknown", ClytErrorWay::Reported, "control", "a control can neither be cleared nor filled"},
    {"248", "RuleWrong", ClytErrorWay::Above, "", "a rule is wrong"},
    {"250", "SlashMissing", ClytErrorWay::Reported, "", "a text is asked for without a slash"},
    {"251", "LibraryNotNamed", ClytErrorWay::Reported, "list", "a list names no library"},
    {"254", "TextTooLong", ClytErrorWay::Reported, "size", "a text is longer than the room for it"},
};

// The number of a name.
consteval const char* lytError(std::string_view name)
{
    const ClytErrorRow* row = lytErrors;
    while (row->name != name)
        ++row;
    return row->number;
}
