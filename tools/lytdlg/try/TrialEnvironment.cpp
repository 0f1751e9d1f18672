#include "lytdlg/try/TrialEnvironment.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "exports/NamedDialogs.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/OpenTexts.h"
#include "lytdlg/text/TextFile.h"
#include "script/LineReader.h"
#include "tree/ClytNode.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>

namespace lytdlg
{

namespace fs = std::filesystem;

using commandline::UsageError;
namespace
{

constexpr const char* iniFile = "lyt.ini";
constexpr const char* languageKey = "Current Language";

// On the disk or in an editor.
bool IsThere(const fs::path& file)
{
    return ReadWholeFile(file).has_value();
}

// Where lyt.ini is near a folder of dialogs; empty without one.
fs::path InitFolderNear(const fs::path& dialogs)
{
    for (const fs::path& folder : {dialogs, dialogs.parent_path() / "init", dialogs.parent_path()})
    {
        if (IsThere(folder / iniFile))
            return folder;
    }
    return {};
}

// Whether an editor holds a text of the folder that is other than the file.
bool HasUnsavedTexts(const fs::path& folder)
{
    return std::ranges::any_of(OpenTexts::NamesIn(folder),
                               [](const fs::path& name) { return ReadSavedFile(name) != ReadWholeFile(name); });
}

// As lyt.ini in a folder says; empty without a folder.
std::string LanguageIn(const fs::path& init)
{
    std::array<char, 256> language{};
    const std::string file = NameForLibrary(init) + "\\" + iniFile;
    if (!init.empty())
        GetPrivateProfileStringA("global", languageKey, "", language.data(), language.size(), file.c_str());
    return language.data();
}

// The names of the dialogs that a description opens.
std::vector<std::string> OpenedBy(const Description& description)
{
    std::vector<std::string> names;
    for (const ValueStatement& statement : description.values)
    {
        if (lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Dialog && !statement.values.empty())
            names.push_back(commandline::ToUtf8(statement.values.front()) + ".dlg");
    }
    return names;
}

// English, unless there is one other language alone.
std::string LanguageOf(const fs::path& dialogs)
{
    const std::vector<std::string> languages = LanguagesIn(dialogs);
    return languages.size() == 1 ? languages.front() : "English";
}

std::vector<std::string> ControlsOf(const fs::path& file, const std::vector<std::string>& defines)
{
    return ControlNames(Description(file.string(), ReadWholeFile(file).value_or(""), defines));
}

// A button may open any other dialog of the folder.
void CheckItems(const Setup& setup, const fs::path& file)
{
    const std::vector<std::string> own =
        setup.items.empty() ? std::vector<std::string>() : ControlsOf(file, setup.defines);
    for (const ItemsOption& items : setup.items)
    {
        const auto isIn = [&](const std::vector<std::string>& names)
        { return std::ranges::find(names, items.control) != names.end(); };
        const auto isInDialog = [&](const fs::path& other) { return isIn(ControlsOf(other, setup.defines)); };
        if (!isIn(own) && std::ranges::none_of(FilesIn(file.parent_path(), ".dlg"), isInDialog))
            throw UsageError("no dialog has a control \"" + commandline::ToUtf8(items.control) +
                             "\" that items could go to; " +
                             commandline::ToUtf8(commandline::Suggestion(items.control, own)));
    }
}

} // namespace

const std::vector<commandline::OptionForm>& SetupOptions()
{
    static const std::vector<commandline::OptionForm> options = {
        {"--define", "WORD", false, "switch on the lines of a define; may be given again"},
        {"--language", "NAME", false, "the texts of lang/NAME.nls (as lyt.ini says)"},
        {"--init", "FOLDER", false, "where lyt.ini is (looked for near the dialogs)"},
        {"--items", "LIST=FILE", false,
         "a file with the items that a data library would deliver to this list or field"},
    };
    return options;
}

ItemsOption ItemsOptionOf(const std::string& text)
{
    const size_t sign = text.find('=');
    if (sign == std::string::npos || sign == 0)
        throw UsageError("option --items needs LIST=FILE after it and not \"" + text + "\"");
    return {commandline::AsAnsi(text.substr(0, sign)), text.substr(sign + 1)};
}

Setup SetupOf(const commandline::Request& request)
{
    Setup setup{request.Operand(0, "")};
    setup.input = commandline::AsAnsi(request.Text("--input", ""));
    setup.language = commandline::AsAnsi(request.Text("--language", ""));
    setup.initFolder = request.Text("--init", "");
    for (const std::string& define : request.Texts("--define"))
        setup.defines.push_back(commandline::AsAnsi(define));
    for (const std::string& items : request.Texts("--items"))
        setup.items.push_back(ItemsOptionOf(items));
    return setup;
}

std::string ReadUtf8File(const std::string& name)
{
    std::optional<std::string> content = ReadWholeFile(PathOf(name));
    if (!content)
        throw UsageError("there is no file \"" + name + "\"; check folder and name");
    return script::ScriptText(*std::move(content));
}

TrialEnvironment::TrialEnvironment(const Setup& setup)
{
    // In full: a configuration file without a folder is looked for in that of the system.
    const fs::path file = fs::absolute(PathOf(setup.dialog)).lexically_normal();
    if (OpenTexts::Find(file) == nullptr && !fs::is_regular_file(file))
        throw UsageError("there is no dialog \"" + setup.dialog + "\"; name a .dlg file with its folder");
    CheckItems(setup, file);
    const fs::path dialogs = file.parent_path();
    fs::path init =
        setup.initFolder.empty() ? InitFolderNear(dialogs) : fs::absolute(PathOf(setup.initFolder)).lexically_normal();
    if (!setup.initFolder.empty() && !IsThere(init / iniFile))
        throw UsageError("there is no lyt.ini in \"" + setup.initFolder + "\"; check the folder after --init");
    if (!setup.language.empty() && !IsThere(dialogs / "lang" / PathOf(commandline::ToUtf8(setup.language) + ".nls")))
        throw UsageError("there is no lang/" + commandline::ToUtf8(setup.language) + ".nls beside the dialog; " +
                         commandline::Suggestion(commandline::ToUtf8(setup.language), LanguagesIn(dialogs)));
    const bool isOtherLanguage = !setup.language.empty() && setup.language != LanguageIn(init);
    if (init.empty() || isOtherLanguage || OpenTexts::Find(init / iniFile) != nullptr)
    {
        MakeIniFile(init, init.empty() && setup.language.empty() ? LanguageOf(dialogs) : setup.language);
        init = PathOf(m_ownFolder);
    }
    if (HasUnsavedTexts(dialogs) || HasUnsavedTexts(dialogs / "lang"))
        TakeOpenTexts(file, setup.defines);
    const std::string folder = NameForLibrary(m_openTexts ? m_openTexts->Name() : dialogs);
    m_descriptionFile = folder + "\\" + NameForLibrary(file.filename());
    lytEnvironment.SetDialogPath(folder.c_str());
    lytEnvironment.SetInitPath(NameForLibrary(init).c_str());
    lytEnvironment.ClearDialogDefine();
    for (const std::string& define : setup.defines)
        lytEnvironment.AddDialogDefine(define.c_str());
}

TrialEnvironment::~TrialEnvironment()
{
    lytEnvironment.Reset();
    lytEnvironment.ClearDialogDefine();
    lytInputKey.Empty();
    lytWizardGroup.Empty();
    lytDeleteNodes();
    std::error_code ignored;
    if (!m_ownFolder.empty())
        fs::remove_all(PathOf(m_ownFolder), ignored);
}

// The description with all that it may open, and the language files.
void TrialEnvironment::TakeOpenTexts(const fs::path& file, const std::vector<std::string>& defines)
{
    const fs::path dialogs = file.parent_path();
    m_openTexts.emplace();
    std::vector<std::string> waiting = {file.filename().string()};
    for (const ClytNamedDialog& named : lytNamedDialogs)
        waiting.emplace_back(named.description);
    std::set<std::string> taken;
    while (!waiting.empty())
    {
        const std::string name = waiting.back();
        waiting.pop_back();
        const fs::path source = FileIn(dialogs, name);
        const std::optional<std::string> content = ReadWholeFile(source.empty() ? dialogs / PathOf(name) : source);
        if (!content || !taken.insert(name).second)
            continue;
        m_openTexts->Put(PathOf(name), *content);
        std::ranges::move(OpenedBy(Description(name, *content, defines)), std::back_inserter(waiting));
    }
    for (const fs::path& texts : FilesIn(dialogs / "lang", ".nls"))
        m_openTexts->Put(fs::path("lang") / texts.filename(), ReadWholeFile(texts).value_or(""));
}

void TrialEnvironment::MakeIniFile(const fs::path& source, const std::string& language)
{
    m_ownFolder = (fs::temp_directory_path() / ("lytdlg-" + std::to_string(GetCurrentProcessId()))).string();
    fs::create_directories(PathOf(m_ownFolder));
    const std::string copy = NameForLibrary(PathOf(m_ownFolder)) + "\\" + iniFile;
    if (!source.empty())
        WriteWholeFile(PathOf(m_ownFolder) / iniFile, ReadWholeFile(source / iniFile).value_or(""));
    if (!language.empty() && !WritePrivateProfileStringA("global", languageKey, language.c_str(), copy.c_str()))
        throw std::runtime_error(m_ownFolder + " cannot be written; make the temporary folder writable");
}

} // namespace lytdlg
