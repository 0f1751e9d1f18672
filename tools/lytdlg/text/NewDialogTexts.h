// What a new dialog consists of, before it has a name.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

// Each `@` is the name of the dialog. One that an export opens takes what that hands over, and answers in its form.
std::string NewDescription(const std::string& name);
// `prefix` leads from the case to the dialog.
std::string NewCase(const std::string& name, const std::string& prefix, const std::string& language);

// The languages that a new folder gets.
const std::vector<std::string>& KnownLanguages();
// The head of a language file with what the library itself asks for.
std::string LibraryTextsOf(const std::string& language);
// One of them, without its key; empty when it has none such.
std::string LibraryTextIn(const std::string& language, const std::string& section, const std::string& key);
// The lines for the section MsgBox, and for the dialog's own section. A language that is not known speaks English.
std::string NewMessages(const std::string& language);
std::string NewTexts(const std::string& language);

} // namespace lytdlg
