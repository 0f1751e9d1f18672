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
    const char* name;
    const char* captionKey = ""; // of its fixed caption, in the section of the buttons
    ClytKind kind = ClytKind::Unknown;
    bool hasCaption = false; // the text of its statement shows on it
    bool hasSize = false;    // its size comes from the statement, and not from its text
    bool hasValue = false;
    bool isFilled = false;   // a statement FILLEDBY gives it contents
    bool hasItems = false;   // a list of any sort
    bool takesItems = false; // one by one, from the input or a button
    bool isOpenList = false; // it can be without a choice, and moves the focus when it is asked for its value then
    bool hasMarks = false;   // its items are marked or not
    bool isChecked = false;  // the window itself is checked or not
    bool isButton = false;   // a press acts
    bool isDefault = false;  // options, states and actions do not reach it
};

// Their section in a language file.
inline constexpr const char* lytButtonSection = "Buttons";

inline constexpr ClytType lytTypes[] = {
    {.word = "Text", .name = "a text", .kind = ClytKind::Text, .hasCaption = true},
    {.word = "TextBox",
     .name = "a field",
     .kind = ClytKind::Field,
     .hasSize = true,
     .hasValue = true,
     .isFilled = true},
    {.word = "GroupBox", .name = "a frame", .kind = ClytKind::Frame, .hasCaption = true, .hasSize = true},
    {.word = "ListBox",
     .name = "a list",
     .kind = ClytKind::List,
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true,
     .takesItems = true,
     .isOpenList = true},
    {.word = "CheckListBox",
     .name = "a check list",
     .kind = ClytKind::CheckList,
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true,
     .isOpenList = true,
     .hasMarks = true},
    {.word = "DropListBox",
     .name = "a drop-down list",
     .kind = ClytKind::DropList,
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true,
     .takesItems = true},
    {.word = "ComboBox",
     .name = "a combo box",
     .kind = ClytKind::Combo,
     .hasSize = true,
     .hasValue = true,
     .isFilled = true,
     .hasItems = true,
     .takesItems = true},
    {.word = "CheckBox",
     .name = "a check box",
     .kind = ClytKind::CheckBox,
     .hasCaption = true,
     .hasValue = true,
     .isChecked = true},
    {.word = "OptionGroup", .name = "an option group", .kind = ClytKind::OptionGroup, .hasValue = true},
    {.word = "OptionButton",
     .name = "an option",
     .kind = ClytKind::Option,
     .hasCaption = true,
     .hasValue = true,
     .isChecked = true},
    {.word = "PushButton",
     .name = "a button",
     .kind = ClytKind::Button,
     .hasCaption = true,
     .hasSize = true,
     .isButton = true},
    {.word = "OKButton",
     .name = "the OK button",
     .captionKey = "001",
     .kind = ClytKind::Ok,
     .hasSize = true,
     .isButton = true,
     .isDefault = true},
    {.word = "CancelButton",
     .name = "the Cancel button",
     .captionKey = "002",
     .kind = ClytKind::Cancel,
     .hasSize = true,
     .isButton = true,
     .isDefault = true},
};

inline constexpr ClytType lytUnknownType = {.word = "", .name = "a control"};

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
