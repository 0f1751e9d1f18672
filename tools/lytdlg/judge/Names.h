// The names that a description knows, and help with those that it does not.
#pragma once

#include "controls/TypeWords.h"
#include "lytdlg/judge/Judge.h"
#include "model/ClytWords.h"

namespace lytdlg
{

using Kind = ClytKind;

// In the order of the file; empty names are left out.
const std::vector<std::string>& ControlNames(const Description& description);
const std::vector<std::string>& GroupNames(const Description& description);
const std::vector<std::string>& PartNames(const Description& description);

bool HasGroup(const Description& description, const std::string& name);
bool HasPart(const Description& description, const std::string& name);
// Of the last control of that name; Unknown without one.
Kind KindOfControl(const Description& description, const std::string& name);

const std::vector<std::string>& TypeWords();

// The words of a kind, as the library knows them.
template <class MEANING>
std::vector<std::string> WordsOf()
{
    std::vector<std::string> words;
    for (const ClytKnownWord<MEANING>& word : ClytWordTable<MEANING>::words)
        words.emplace_back(word.text);
    return words;
}

// Among more words than these no search is made: suggestions for many wrong words would take minutes.
inline constexpr size_t mostCandidates = 500;
// The known word that was meant: one that differs in upper and lower case only, or in a few letters. Empty when there is
// none.
std::string MeantWord(const std::string& word, const std::vector<std::string>& known);
// "did you mean ...?", or else the other text.
std::string MeantOr(const std::string& word, const std::vector<std::string>& known, const std::string& otherwise);

// An unknown word, the known words, and a hint for when none of them was meant.
struct UnknownWord
{
    const std::string& text;
    const std::vector<std::string>& known;
    std::string otherwise;
};

// Whether only the one known word can have been meant.
bool IsSurelyMeant(const std::string& word, const std::string& meant, const std::vector<std::string>& known);
// Puts the known word that was meant in the place of the other one, if that is what is there.
void FixWord(const Case& judged, Finding& finding, const UnknownWord& word);
// Adds a finding with the known word that was meant.
Finding& AddUnknown(const Case& judged, RuleName rule, const ClytSpan& place, std::string message,
                    const UnknownWord& word);

// Whether DIALOG or ACTION has fewer words than it needs.
bool LacksWords(ClytAction action, size_t words);

std::string InQuotes(const std::string& text);

// Whether a line that a define switches off has the word: what nothing else uses may be used there.
bool IsNamedWhereSwitchedOff(const Description& description, const std::string& word);

Kind KindOf(const ClytControlStatement& control);
// The group that an option belongs to; null without one.
const ClytControlStatement* GroupOf(const Description& description, const ClytControlStatement& option);
// The option buttons of a group, in their order.
const std::vector<const ClytControlStatement*>& OptionButtonsOf(const Description& description,
                                                                const std::string& group);

} // namespace lytdlg
