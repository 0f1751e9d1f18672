// The words of the description language that have a meaning, one table for each kind, for the reader, the rules, the
// controls and the tools. A word that a table does not have means Other.
#pragma once

#include "base/Words.h"

#include <utility>

// What a dependency rule does to its control.
enum class ClytState
{
    Other,
    Visible,
    Active,
    Clear,
    Fill,
    DefButton
};

// How a control starts: the value of a statement that any control takes.
enum class ClytOption
{
    Other,
    Hidden,
    DisplayOnly,
    Invisible,
    Inactive
};

// What a push button does: the keyword of its statement.
enum class ClytAction
{
    Other,
    Visible,
    Active,
    Add,
    Delete,
    Up,
    Down,
    Action,
    Reject,
    Fill,
    Dialog
};

// The keywords of the other controls' statements.
enum class ClytKeyword
{
    Other,
    FilledBy,
    DoubleClick,
    On,
    Off
};

// What becomes of a piece of the input, and of the values of a list in the output.
enum class ClytFillAction
{
    Other,
    Fill,
    Add,
    Modify,
    Concat
};

// Values that have a meaning in some places.
enum class ClytValueWord
{
    Other,
    Null,
    NotNull,
    Fill,
    On,
    Off,
    Ok
};

template <class MEANING>
struct ClytKnownWord
{
    const char* text;
    MEANING meaning;
};

// The table of a kind.
template <class MEANING>
struct ClytWordTable;

template <>
struct ClytWordTable<ClytState>
{
    static constexpr ClytKnownWord<ClytState> words[] = {
        {"VISIBLE", ClytState::Visible}, {"ACTIVE", ClytState::Active},       {"CLEAR", ClytState::Clear},
        {"FILL", ClytState::Fill},       {"DEFBUTTON", ClytState::DefButton},
    };
};

template <>
struct ClytWordTable<ClytOption>
{
    static constexpr ClytKnownWord<ClytOption> words[] = {
        {"HIDDEN", ClytOption::Hidden},
        {"DISPLAYONLY", ClytOption::DisplayOnly},
        {"INVISIBLE", ClytOption::Invisible},
        {"INACTIVE", ClytOption::Inactive},
    };
};

template <>
struct ClytWordTable<ClytAction>
{
    static constexpr ClytKnownWord<ClytAction> words[] = {
        {"VISIBLE", ClytAction::Visible}, {"ACTIVE", ClytAction::Active}, {"ADD", ClytAction::Add},
        {"DELETE", ClytAction::Delete},   {"UP", ClytAction::Up},         {"DOWN", ClytAction::Down},
        {"ACTION", ClytAction::Action},   {"REJECT", ClytAction::Reject}, {"FILL", ClytAction::Fill},
        {"DIALOG", ClytAction::Dialog},
    };
};

template <>
struct ClytWordTable<ClytKeyword>
{
    static constexpr ClytKnownWord<ClytKeyword> words[] = {
        {"FILLEDBY", ClytKeyword::FilledBy},
        {"DBLCLICK", ClytKeyword::DoubleClick},
        {"ON", ClytKeyword::On},
        {"OFF", ClytKeyword::Off},
    };
};

template <>
struct ClytWordTable<ClytFillAction>
{
    static constexpr ClytKnownWord<ClytFillAction> words[] = {
        {"FILL", ClytFillAction::Fill},
        {"ADD", ClytFillAction::Add},
        {"MODIFY", ClytFillAction::Modify},
        {"CONCAT", ClytFillAction::Concat},
    };
};

template <>
struct ClytWordTable<ClytValueWord>
{
    static constexpr ClytKnownWord<ClytValueWord> words[] = {
        {"NULL", ClytValueWord::Null}, {"NOTNULL", ClytValueWord::NotNull}, {"FILL", ClytValueWord::Fill},
        {"ON", ClytValueWord::On},     {"OFF", ClytValueWord::Off},         {"OK", ClytValueWord::Ok},
    };
};

// The meaning of a word of that kind.
template <class MEANING>
MEANING lytMeaningOf(const CString& text)
{
    for (const ClytKnownWord<MEANING>& word : ClytWordTable<MEANING>::words)
    {
        if (lytSameWord(text, word.text))
            return word.meaning;
    }
    return MEANING::Other;
}

// The word of a meaning; empty for Other.
template <class MEANING>
constexpr const char* lytTextOf(MEANING meaning)
{
    for (const ClytKnownWord<MEANING>& word : ClytWordTable<MEANING>::words)
    {
        if (word.meaning == meaning)
            return word.text;
    }
    return "";
}

// Whether a text is the word of that meaning.
template <auto MEANING>
bool lytMeans(const CString& text)
{
    static constexpr const char* word = lytTextOf(MEANING);
    static_assert(*word != '\0');
    return lytSameWord(text, word);
}

// A word as a description has it, with its meaning, which is looked up once, when the word is taken over.
template <class MEANING>
class ClytWord
{
public:
    ClytWord() = default;
    ClytWord(CString word) : text(std::move(word)), meaning(lytMeaningOf<MEANING>(text)) {}
    ClytWord(const char* word) : ClytWord(CString(word)) {}
    ClytWord(MEANING known) : text(lytTextOf(known)), meaning(known) {}

    const CString& GetText() const { return text; }
    MEANING GetMeaning() const { return meaning; }

private:
    CString text;
    MEANING meaning = MEANING::Other;
};

using ClytStateWord = ClytWord<ClytState>;
using ClytFillWord = ClytWord<ClytFillAction>;
