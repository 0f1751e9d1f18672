// The descriptions that the exports open by their names: what such a dialog receives, and how its result is cut.
#pragma once

enum class ClytNamed
{
    Symbol,
    Phrase,
    Condition,
    Repetition,
    WizardGroup,
    WizardPhrase,
    WizardSymbol
};

enum class ClytHanded
{
    Key,     // of a placeholder
    Bracket, // of a key that is split: what begins with its first bracket
    Entry,   // of the catalogue: its key, a `/` and its label
    Label    // of a heading
};

enum class ClytCut
{
    Nowhere,
    AtMark, // into the bracket, and what follows the `/` of the mark
    IntoTexts
};

struct ClytNamedDialog
{
    ClytNamed which;
    const char* description;
    const char* purpose; // what does not open without it
    ClytHanded handed;
    ClytCut cut;
};

inline constexpr ClytNamedDialog lytNamedDialogs[] = {
    {ClytNamed::Symbol, "lytInSym.dlg", "the dialog of a symbol", ClytHanded::Key, ClytCut::Nowhere},
    {ClytNamed::Phrase, "lytInPhr.dlg", "the dialog of a phrase", ClytHanded::Key, ClytCut::Nowhere},
    {ClytNamed::Condition, "lytCdGrp.dlg", "the dialog of a group on a condition", ClytHanded::Bracket,
     ClytCut::AtMark},
    {ClytNamed::Repetition, "lytRpGrp.dlg", "the dialog of a repeated group", ClytHanded::Bracket, ClytCut::AtMark},
    {ClytNamed::WizardGroup, "lytWzGrp.dlg", "the wizard's dialog of a group", ClytHanded::Entry, ClytCut::IntoTexts},
    {ClytNamed::WizardPhrase, "lytWzPhr.dlg", "the wizard's dialog of a phrase", ClytHanded::Label, ClytCut::Nowhere},
    {ClytNamed::WizardSymbol, "lytWzSym.dlg", "the wizard's dialog of a symbol", ClytHanded::Entry, ClytCut::Nowhere},
};

constexpr const ClytNamedDialog& lytNamed(ClytNamed which)
{
    return lytNamedDialogs[static_cast<int>(which)];
}

// Ends the bracket in the result of a group's dialog. The text after its `/` is the second part, and gets three letters of
// the old key.
inline constexpr const char* lytGroupMark = ")/1";
inline constexpr int lytKeptLettersBegin = 5;
inline constexpr int lytKeptLettersEnd = 8;
