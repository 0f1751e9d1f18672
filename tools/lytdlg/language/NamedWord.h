// What a word of a description names. The library's own reader says so: it reads the statement with a mark in the place of the
// word, and the mark is looked for in what was read.
#pragma once

#include "controls/TypeWords.h"
#include "lytdlg/judge/Description.h"

namespace lytdlg
{

enum class Meaning
{
    Nothing,
    SectionWord,
    TypeWord,
    TextSection, // of a language file
    TextKey,
    Message,
    Control,
    Keyword, // of a statement of $VALUES
    Option,  // such as HIDDEN
    Value,   // of a control
    State,   // of a dependency rule
    Fill,    // what becomes of a piece
    Statement,
    Part,
    Group,
    Dialog,
    Library,
    Function,
    Item, // of an output rule: a control, or a text
    CaseWord
};

struct NamedWord
{
    Meaning meaning = Meaning::Nothing;
    std::string text = {};
    ClytSpan place = {};
    bool isDeclared = false;        // this is where the name is given
    std::string scope = {};         // a value's control, a key's section, a statement's part, a function's library
    bool ClytType::*fits = nullptr; // which controls can be meant; null for all
    std::string home = {};          // the path of the description or language file whose name it is
};

// What the word that a column touches names, or what a word there would name.
NamedWord WordAt(const Description& description, int line, int column);
// The words of a line that name something.
std::vector<NamedWord> WordsIn(const Description& description, int line);
std::vector<NamedWord> AllWordsIn(const Description& description);
// The words of the whole description that name the same.
std::vector<NamedWord> WordsLike(const Description& description, const NamedWord& word);

// Whether two words name the same, if they have one home.
bool IsSame(const NamedWord& left, const NamedWord& right);

} // namespace lytdlg
