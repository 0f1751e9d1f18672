// A small complete dialog to begin with: its description, its texts in every language, and a test case.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lytdlg
{

// What was done with a file.
struct MadeFile
{
    std::filesystem::path name;
    bool isNew = true; // else texts were added to it
};

// Empty for a name that a dialog can have, else what is wrong with it and what to do.
std::string FaultOfName(const std::string& name);

// The content of a language file with lines at the end of a section, and the section at the end of the file when it is not
// there.
std::string WithKeys(const std::string& content, const std::string& section, const std::string& lines);

// Makes the dialog in a folder of dialogs. The case goes to the folder `cases` beside that folder where there is one, else
// beside the dialog. Throws commandline::UsageError where a file or a section of that name is there already, and
// std::runtime_error where a file cannot be written; then everything is as it was.
std::vector<MadeFile> MakeDialog(const std::filesystem::path& folder, const std::string& name);

} // namespace lytdlg
