// Whether the library can be loaded, and what it reads of its language file then.
#include "base/ClytHandle.h"
#include "base/PartnerLibrary.h"
#include "lytdlg/doctor/Configuration.h"
#include "lytdlg/doctor/Deployment.h"
#include "lytdlg/judge/LoadTrial.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include "lyt64.h"

#include <array>

namespace lytdlg
{

namespace
{

constexpr const char* aboutLoading = "loading";

// The functions that tell what the library reads; null when it has none of that name.
struct Functions
{
    explicit Functions(HMODULE library)
        : initialise(lytFindFunction<decltype(lytInitialiseEnvironment)>(library, "lytInitialiseEnvironment")),
          textForKey(lytFindFunction<decltype(lytGetTextForKey)>(library, "lytGetTextForKey")),
          end(lytFindFunction<decltype(FreeGlobalObject)>(library, "FreeGlobalObject"))
    {
    }
    bool AreThere() const { return initialise != nullptr && textForKey != nullptr && end != nullptr; }

    decltype(lytInitialiseEnvironment)* initialise;
    decltype(lytGetTextForKey)* textForKey;
    decltype(FreeGlobalObject)* end;
};

size_t CountRead(const Functions& functions)
{
    size_t count = 0;
    for (const LibraryText& text : LibraryTexts())
    {
        std::array<char, 256> buffer = {};
        const int size = static_cast<int>(buffer.size()) - 1; // a function may write one byte beyond
        count += functions.textForKey(text.section.c_str(), text.key.c_str(), "", buffer.data(), size) != 0 ? 1 : 0;
    }
    return count;
}

size_t CountInFile(const LanguageFile& file)
{
    size_t count = 0;
    for (const LibraryText& text : LibraryTexts())
        count += file.Find(text.section, text.key) != nullptr ? 1 : 0;
    return count;
}

void JudgeReading(const Deployment& deployment, const Configuration& configuration, HMODULE library,
                  Diagnosis& diagnosis)
{
    const Functions functions(library);
    const std::filesystem::path& file = deployment.library.chosen;
    const std::filesystem::path& dialogs = deployment.dialogs.chosen;
    const LanguageFiles languages(dialogs);
    const LanguageFile* const inUse = dialogs.empty() ? nullptr : languages.FileOf(configuration.Language());
    if (!functions.AreThere() || inUse == nullptr)
    {
        diagnosis.Add(Verdict::Good, aboutLoading, file, "can be loaded");
        return;
    }
    const auto nameOf = [](const std::filesystem::path& path)
    { return NameForLibrary(std::filesystem::absolute(path)); };
    functions.initialise("", nameOf(dialogs).c_str(), nameOf(deployment.configuration.chosen.parent_path()).c_str());
    const size_t count = CountRead(functions);
    functions.end();
    if (count < CountInFile(*inUse))
        diagnosis.Add(Verdict::Wrong, aboutLoading, file,
                      "can be loaded, but reads " + std::to_string(count) + " of the " +
                          std::to_string(CountInFile(*inUse)) + " texts of " + inUse->FileName(),
                      "look whether the users may read that file, and lyt.ini; their names may be too long");
    else
        diagnosis.Add(Verdict::Good, aboutLoading, file, "can be loaded, and reads " + inUse->FileName());
}

} // namespace

// A file that is not a library for this program has a finding already.
void JudgeLoading(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis)
{
    const std::filesystem::path& file = deployment.library.chosen;
    if (ReadExports(ReadWholeFile(file).value_or("")).form != LibraryForm::Library)
        return;
    const ClytErrorBoxesOff noBoxes;
    const ClytModuleHandle library(::LoadLibraryW(std::filesystem::absolute(file).c_str()));
    if (!library.IsOpen())
    {
        diagnosis.Add(Verdict::Wrong, aboutLoading, file, "cannot be loaded: " + ReasonOfLoadError(::GetLastError()),
                      "copy it again; what guards this machine may have to allow it");
        return;
    }
    try
    {
        JudgeReading(deployment, configuration, library.Get(), diagnosis);
    }
    catch (const commandline::UsageError& lackingLetter)
    {
        diagnosis.Add(Verdict::Wrong, aboutLoading, file, lackingLetter.what());
    }
}

} // namespace lytdlg
