// What a new dialog consists of, before it has a name.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

// Each `@` is the name of the dialog. One that an export opens reads and returns texts in the form of that export.
std::string NewDescription(const std::string& name);
// `prefix` leads from the case to the dialog.
std::string NewCase(const std::string& name, const std::string& prefix, const std::string& language);

// The languages that a new folder gets.
const std::vector<std::string>& KnownLanguages();
// The head of a language file with the texts that the library itself needs.
std::string LibraryTextsOf(const std::string& language);
// One of them, without its key; empty when it has no such text.
std::string LibraryTextIn(const std::string& language, const std::string& section, const std::string& key);
// The lines for the section MsgBox, and for the dialog's own section. For an unknown language they are English.
std::string NewMessages(const std::string& language);
std::string NewTexts(const std::string& language);

} // namespace lytdlg
