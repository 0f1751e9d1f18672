// What the type words of the layout stand for, as far as rules depend on it.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

enum class Kind
{
    Unknown,
    Text,
    Field,
    Frame,
    List,
    CheckList,
    DropList,
    Combo,
    CheckBox,
    OptionGroup,
    Option,
    Button,
    Ok,
    Cancel
};

Kind KindOf(const std::string& typeWord);
const std::vector<std::string>& TypeWords();
// "a list", "a check box"; "a control" for an unknown one.
const char* NameOf(Kind kind);

// OK and Cancel: options, states and actions do not reach them.
bool IsDefault(Kind kind);
// A list of any sort.
bool HasItems(Kind kind);
// A list that stands open. It can be without a choice, and moves the focus when it is asked for its value then.
bool IsOpenList(Kind kind);
bool HasValue(Kind kind);
// A statement FILLEDBY gives it contents.
bool IsFilledByLibrary(Kind kind);
// The text of its statement shows on it.
bool ShowsText(Kind kind);
// Its size comes from the statement, and not from its text.
bool HasSize(Kind kind);

} // namespace lytdlg
