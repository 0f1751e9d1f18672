// Where a name is given, and where it is used.
#pragma once

#include "lytdlg/language/FileWords.h"

namespace lytdlg
{

struct TextPlace
{
    std::string path;
    ClytSpan place;
    bool isDeclared = false;
};

// The places of a name: in its description, in the other descriptions and the language files of the folder, and in the
// cases. A dialog itself is declared at the beginning of its description, which has no such word.
std::vector<TextPlace> PlacesOf(const Workspace& workspace, const NamedWord& word);

// The golden cases of a dialog, in files beside it and in folders called cases.
std::vector<GoldenCase> CasesOf(const Workspace& workspace, const std::string& path);

// A key of a language file, a message or a section of them.
bool IsText(Meaning meaning);

// The texts of a key in each language.
struct LanguageText
{
    std::string language;
    std::string text;
};
std::vector<LanguageText> TextsOfKey(const LanguageFiles& files, const std::string& section, const std::string& key);

} // namespace lytdlg
