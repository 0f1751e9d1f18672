#include "fuzz/frame/Words.h"

#include "controls/TypeWords.h"
#include "dialog/ClytDialog.h"
#include "dlgfile/Sections.h"
#include "model/ClytWords.h"

#include <cstdio>

namespace
{

// What no table holds: words that occur at one place of the reader, formats, keys of `lyt.ini`, texts with a meaning.
constexpr const char* furtherWords[] = {
    "Begin Dialog",
    "End Dialog",
    "Rest",
    "End",
    "parent",
    "other",
    "nested",
    "lytdata",
    "OpenList",
    "NextItem",
    "LookUp",
    "LookUpRaises",
    "lyt64",
    "%s",
    "%.3s",
    "\\n",
    "\\t",
    "\\\"",
    "/LIST",
    ")/1",
    "BNG",
    "##",
    "global",
    "LogLevel",
    "TreeLevels",
    "TreeWidth",
    "FONTS",
    "Dialog_Error",
    "lytOpenTreeView",
    "Current Language",
    "no value present",
};

std::string Quoted(const std::string& word)
{
    std::string quoted;
    for (const char ch : word)
        (quoted += ch == '"' || ch == '\\' ? "\\" : "") += ch;
    return "\"" + quoted + "\"\n";
}

template <class MEANING>
std::string WordsOf()
{
    std::string words;
    for (const auto& word : ClytWordTable<MEANING>::words)
        words += Quoted(word.text);
    return words;
}

} // namespace

std::string Dictionary()
{
    std::string words = WordsOf<ClytState>() + WordsOf<ClytOption>() + WordsOf<ClytAction>() + WordsOf<ClytKeyword>() +
                        WordsOf<ClytFillAction>() + WordsOf<ClytValueWord>() + Quoted(lytStartName);
    for (const char* word : lytSectionWords)
        words += Quoted(word);
    for (const ClytType& type : lytTypes)
        words += Quoted(type.word);
    for (const char* word : furtherWords)
        words += Quoted(word);
    return words;
}
