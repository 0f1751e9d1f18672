// The names in the texts of a workspace: descriptions, language files and files of cases.
#pragma once

#include "lytdlg/language/NamedWord.h"
#include "lytdlg/language/Workspace.h"
#include "lytdlg/try/CaseFile.h"

namespace lytdlg
{

// All of a text, in their order.
std::vector<NamedWord> WordsOf(const Workspace& workspace, const std::string& path);
// The text of a file in the code page, with the columns that an editor has.
std::string TextOf(const Workspace& workspace, const std::string& path);
// Those that name the same as the word, as it would there.
std::vector<NamedWord> WordsLike(const Workspace& workspace, const std::string& path, const NamedWord& word);
// What a word at a place names, or would name. Without a home where nothing can be written.
NamedWord WordAt(const Workspace& workspace, const std::string& path, const TextPosition& position);
// The name that a place touches. A control of a case is one of the dialog that is on top there.
NamedWord NameAt(const Workspace& workspace, const std::string& path, const TextPosition& position);

// The description of the word's dialog, or what its path would be.
std::string PathOfDialog(const NamedWord& word);

// What `lytdlg test` would stop at in a file of cases.
std::vector<Finding> FindingsInCases(const Workspace& workspace, const std::string& path);

CaseText CasesIn(const Workspace& workspace, const std::string& path);
// The controls of a file of cases, each with the dialog that is on top there as its home.
std::vector<NamedWord> ControlsOfCases(const Workspace& workspace, const std::string& path, const std::string& name);

} // namespace lytdlg
