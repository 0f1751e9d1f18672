#include "lytdlg/doctor/Checks.h"

#include "commandline/Text.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

constexpr const char* aboutConfiguration = "configuration";
constexpr const char* aboutLanguage = "language";

void JudgeLanguage(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis)
{
    const std::filesystem::path& file = deployment.configuration.chosen;
    const LanguageKey* const key = configuration.Find("global", "Current Language");
    const std::filesystem::path& dialogs = deployment.dialogs.chosen;
    const std::vector<std::string> languages = dialogs.empty() ? std::vector<std::string>() : LanguagesIn(dialogs);
    const std::string known = languages.empty() ? "English" : languages.front();
    if (key == nullptr)
    {
        diagnosis.Add(Verdict::Wrong, aboutLanguage, file,
                      "no language is set, so that every text reads \"no value present\"",
                      "write Current Language=" + known + " in the section [global]");
        return;
    }
    if (dialogs.empty())
        return;
    const std::string language = ToUtf8(key->text);
    const auto isMeant = [&](const std::string& each) { return IsSameName(each, language); };
    if (std::ranges::any_of(languages, isMeant))
        diagnosis.Add({Verdict::Good, aboutLanguage, file.string(), PlaceOfValue(*key), language, ""});
    else
        diagnosis.Add({Verdict::Wrong, aboutLanguage, file.string(), PlaceOfValue(*key),
                       (dialogs / "lang" / (language + ".nls")).string() +
                           " is not there, so that every text reads \"no value present\"",
                       languages.empty() ? "copy the folder lang with its language files beside the descriptions"
                                         : MeantOr(language, languages, "write " + known + ", or add the file")});
}

// Without a number the window is as narrow and as low as one can be.
void JudgeCatalogueSize(const std::filesystem::path& file, const Configuration& configuration, Diagnosis& diagnosis)
{
    for (const char* key : {"TreeWidth", "TreeHeight"})
    {
        if (configuration.NumberOf("global", key) > 0)
            continue;
        const LanguageKey* const found = configuration.Find("global", key);
        diagnosis.Add({Verdict::Warning, aboutConfiguration, file.string(),
                       found != nullptr ? PlaceOfValue(*found) : ClytSpan(),
                       std::string(key) + " is no size, so that the catalogue opens as small as a window can be",
                       std::string("write ") + key + "=500 in the section [global]"});
    }
}

// A report takes that folder, and the library keeps to it.
void JudgeRegisteredFolder(const std::filesystem::path& file, Diagnosis& diagnosis)
{
    const std::filesystem::path folder = RegisteredConfigurationFolder();
    std::error_code ignored;
    if (!folder.empty() && !std::filesystem::equivalent(folder, std::filesystem::absolute(file).parent_path(), ignored))
        diagnosis.Add(Verdict::Warning, aboutConfiguration, folder,
                      "is the folder that HKCR\\LYTDOCUMENT\\shell\\open\\IniPath names; once somebody has gathered a "
                      "report, the library looks for lyt.ini there",
                      "remove that key of the registry, or let it name the folder of " + file.string());
}

} // namespace

void JudgeConfiguration(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis)
{
    const std::filesystem::path& file = deployment.configuration.chosen;
    std::error_code ignored;
    if (file.empty() || !std::filesystem::exists(file, ignored))
    {
        diagnosis.Add(Verdict::Wrong, aboutConfiguration, file,
                      file.empty() ? "there is no lyt.ini in the folders" : "is not there",
                      "copy it there, or name its folder with --init");
        return;
    }
    if (!ReadWholeFile(file))
    {
        AddUnreadable(Verdict::Wrong, aboutConfiguration, file, diagnosis);
        return;
    }
    diagnosis.Add(Verdict::Good, aboutConfiguration, file, "is there");
    for (const std::filesystem::path& other : deployment.configuration.others)
        diagnosis.Add(Verdict::Warning, aboutConfiguration, other,
                      "is a second one, and the macros may name the folder of either",
                      "remove it, or name the folder that is meant with --init");
    if (configuration.HasByteOrderMark())
        diagnosis.Add({Verdict::Warning,
                       aboutConfiguration,
                       file.string(),
                       {1, 0, 1},
                       "a byte order mark comes before the first line, and hides it",
                       saveAsAnsi});
    JudgeRegisteredFolder(file, diagnosis);
    JudgeLanguage(deployment, configuration, diagnosis);
    JudgeCatalogueSize(file, configuration, diagnosis);
}

} // namespace lytdlg
