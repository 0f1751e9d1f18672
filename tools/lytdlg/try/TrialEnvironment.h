// What a dialog is tried with: its folders, its language, the defines and the substitutes for its data libraries.
#pragma once

#include "commandline/CommandLine.h"
#include "lytdlg/text/Paths.h"

#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// What a partner library would deliver to a control.
struct ItemsOption
{
    std::string control;
    std::string file;
};

// File names are as the command line has them; other texts are in the code page of the dialogs.
struct Setup
{
    std::string dialog; // path of the description
    std::string input = {};
    std::string language = {};   // empty for that of lyt.ini
    std::string initFolder = {}; // empty for the one near the dialogs
    std::vector<std::string> defines = {};
    std::vector<ItemsOption> items = {};
};

// The options of Setup, and what a command line says of them with the dialog as its first operand.
const std::vector<commandline::OptionForm>& SetupOptions();
Setup SetupOf(const commandline::Request& request);
// "LIST=FILE".
ItemsOption ItemsOptionOf(const std::string& text);

// Reads a whole file; a text that is not UTF-8 counts as one in the code page of the dialogs; it is returned as UTF-8, too.
std::string ReadUtf8File(const std::string& name);

// The library's environment while it lives.
class TrialEnvironment
{
public:
    // Without a folder, lyt.ini is looked for beside the dialogs, in the folder `init` beside theirs, and above them.
    // Without one, and for another language, one is made for the time.
    explicit TrialEnvironment(const Setup& setup);
    TrialEnvironment(const TrialEnvironment&) = delete;
    TrialEnvironment& operator=(const TrialEnvironment&) = delete;
    ~TrialEnvironment();

    // The description's name as the library opens it.
    const std::string& DescriptionFile() const { return m_descriptionFile; }

private:
    void TakeOpenTexts(const std::filesystem::path& file, const std::vector<std::string>& defines);
    void MakeIniFile(const std::filesystem::path& source, const std::string& language);

    std::string m_descriptionFile;
    std::optional<FolderForLibrary> m_openTexts; // of an editor, in place of the folder of the dialogs
    std::string m_ownFolder;                     // holds another lyt.ini
};

} // namespace lytdlg
