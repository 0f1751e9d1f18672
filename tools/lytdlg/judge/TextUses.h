// The texts of language files that a description shows.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

enum class TextRole
{
    Title,
    Caption,   // of a control
    Alternate, // the other caption of a button
    Item,      // of a list
    Message,   // of a check
    Button     // OK and Cancel, whose keys are fixed
};

struct ShownText
{
    TextRole role = TextRole::Title;
    std::string section;
    std::string key;
    ClytSpan place;
    const ClytControlStatement* control = nullptr; // of the description; null for the title and for messages
};

// Whether the user reads the text as the caption of a control, which may underline a letter.
constexpr bool IsCaptionOrButton(TextRole role)
{
    return role == TextRole::Caption || role == TextRole::Alternate || role == TextRole::Button;
}

// In the order of the file. Without a text section a dialog has only its messages and the texts of OK and Cancel.
std::vector<ShownText> TextUsesOf(const Description& description);

// The letter that `&` marks in a caption, small; 0 without one.
char MnemonicOf(const std::string& text);

} // namespace lytdlg
