// Where a name is given, where it is used, and what is said of it.
#pragma once

#include "lytdlg/language/Edits.h"
#include "lytdlg/language/NamedWord.h"
#include "lytdlg/try/CaseFile.h"

#include <stdexcept>

namespace lytdlg
{

struct TextPlace
{
    std::string path;
    ClytSpan place;
    bool isDeclared = false;
};

// The places of what the word of a description names: in it, in the other descriptions and the language files of its folder
// and in the cases of the dialog.
std::vector<TextPlace> PlacesOf(const Workspace& workspace, const std::string& path, const NamedWord& word);

// The golden cases of the dialog, in files beside it and in folders called cases. Those that cannot be read are left out.
std::vector<GoldenCase> CasesOf(const Workspace& workspace, const std::string& path);

// The texts of a key in each language.
struct LanguageText
{
    std::string language;
    std::string text;
};
std::vector<LanguageText> TextsOfKey(const LanguageFiles& files, const NamedWord& word);

// What is known of a word: in Markdown, in the code page. Empty for nothing.
std::string ExplanationOf(const Workspace& workspace, const std::string& path, const NamedWord& word);

// Why a name cannot have another one.
class RenameRefused : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Throws when the word cannot be renamed.
void ExpectRenamable(const NamedWord& word);
// The changes that give a name another one everywhere. Throws RenameRefused when that would change what the dialog does.
EditsByPath RenamingOf(const Workspace& workspace, const std::string& path, const NamedWord& word,
                       const std::string& newName);

} // namespace lytdlg
