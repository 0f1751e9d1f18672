// The type words of the layout, each once, with what is known of the control that a word makes. The library makes its
// controls by them (ClytControlTypes.cpp); the tools know the language from here.
#pragma once

#include <string_view>

enum class ClytKind
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

struct ClytType
{
    const char* word;
    ClytKind kind;
    const char* name;
    const char* captionKey = ""; // of its fixed caption, in the section of the buttons
    bool hasCaption = false;     // the text of its statement shows on it
    bool hasSize = false;        // its size comes from the statement, and not from its text
    bool hasValue = false;
    bool isFilled = false;   // a statement FILLEDBY gives it contents
    bool hasItems = false;   // a list of any sort
    bool isOpenList = false; // it can be without a choice, and moves the focus when it is asked for its value then
    bool hasMarks = false;   // its items are marked or not
    bool isChecked = false;  // the window itself is checked or not
    bool isButton = false;   // a press acts
    bool isDefault = false;  // options, states and actions do not reach it
};

// Their section in a language file.
inline constexpr const char* lytButtonSection = "Buttons";

inline constexpr ClytType lytTypes[] = {
    {.word = "Text", .kind = ClytKind::Text, .name = "a text", .hasCaption = true},
    {.word = "TextBox",
     .kind = ClytKind::Field,
     .name = "a field",
     .hasSize = true,
     .hasValue = true,
     .isFilled = true},
    {.word = "GroupBox", .kind = ClytKind::Frame, .name = "a frame", .hasCaption = true, .hasSize = true},
    {.word = "ListBox",
     .kind = ClytKind::List,
     .name = "a list",
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true,
     .isOpenList = true},
    {.word = "CheckListBox",
     .kind = ClytKind::CheckList,
     .name = "a check list",
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true,
     .isOpenList = true,
     .hasMarks = true},
    {.word = "DropListBox",
     .kind = ClytKind::DropList,
     .name = "a drop-down list",
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true},
    {.word = "ComboBox",
     .kind = ClytKind::Combo,
     .name = "a combo box",
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true},
    {.word = "CheckBox",
     .kind = ClytKind::CheckBox,
     .name = "a check box",
     .hasCaption = true,
     .hasValue = true,
     .isChecked = true},
    {.word = "OptionGroup", .kind = ClytKind::OptionGroup, .name = "an option group", .hasValue = true},
    {.word = "OptionButton",
     .kind = ClytKind::Option,
     .name = "an option",
     .hasCaption = true,
     .hasValue = true,
     .isChecked = true},
    {.word = "PushButton",
     .kind = ClytKind::Button,
     .name = "a button",
     .hasCaption = true,
     .hasSize = true,
     .isButton = true},
    {.word = "OKButton",
     .kind = ClytKind::Ok,
     .name = "the OK button",
     .captionKey = "001",
     .hasSize = true,
     .isButton = true,
     .isDefault = true},
    {.word = "CancelButton",
     .kind = ClytKind::Cancel,
     .name = "the Cancel button",
     .captionKey = "002",
     .hasSize = true,
     .isButton = true,
     .isDefault = true},
};

inline constexpr ClytType lytUnknownType = {.word = "", .kind = ClytKind::Unknown, .name = "a control"};

constexpr const ClytType& lytTypeOf(ClytKind kind)
{
    for (const ClytType& type : lytTypes)
    {
        if (type.kind == kind)
            return type;
    }
    return lytUnknownType;
}

constexpr const ClytType& lytTypeOf(std::string_view word)
{
    for (const ClytType& type : lytTypes)
    {
        if (word == type.word)
            return type;
    }
    return lytUnknownType;
}
