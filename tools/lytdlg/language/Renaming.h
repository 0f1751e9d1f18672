// Another name for what a word names.
#pragma once

#include "lytdlg/language/Edits.h"
#include "lytdlg/language/FileWords.h"

#include <stdexcept>

namespace lytdlg
{

// Why a name cannot have another one, in UTF-8.
class RenameRefused : public std::runtime_error
{
public:
    explicit RenameRefused(const std::string& reason);
};

struct Renaming
{
    EditsByPath edits;
    std::string file; // that gets another name, after the edits; empty for none
    std::string newFile;
};

// Throws when the word cannot be renamed.
void ExpectRenamable(const NamedWord& word);
// The changes that give a name another one everywhere. Throws RenameRefused when that would change what a dialog does.
Renaming RenamingOf(const Workspace& workspace, const NamedWord& word, const std::string& newName);

} // namespace lytdlg
