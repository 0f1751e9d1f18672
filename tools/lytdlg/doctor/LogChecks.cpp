#include "lytdlg/doctor/Checks.h"

#include "commandline/Text.h"
#include "environment/LogFile.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <cctype>
#include <fstream>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

constexpr const char* aboutLog = "log";

bool IsNumber(const std::string& text)
{
    return !text.empty() && std::ranges::all_of(text, [](unsigned char ch) { return std::isdigit(ch) != 0; });
}

// Tries it as the library does, at the end of the file, and leaves no trace.
bool CanBeWritten(const fs::path& log)
{
    std::error_code ignored;
    const bool wasThere = fs::exists(log, ignored);
    if (wasThere && IsWriteProtected(log))
        return false;
    const bool isOpen = std::ofstream(log, std::ios::binary | std::ios::app).is_open();
    if (isOpen && !wasThere)
        fs::remove(log, ignored);
    return isOpen;
}

void JudgeLogOf(const std::string& document, Diagnosis& diagnosis)
{
    const fs::path log = PathOf(lytLogNameOf(document.c_str()).GetString());
    if (log != PathOf(document).replace_extension(".log"))
        diagnosis.Add(Verdict::Warning, aboutLog, log,
                      "is the log of " + document + ": the name is cut at the first dot of the whole path",
                      "keep documents in folders without a dot in their names");
    if (CanBeWritten(log))
    {
        diagnosis.Add(Verdict::Good, aboutLog, log, "can be written");
        return;
    }
    std::error_code ignored;
    const bool hasFolder = !log.has_parent_path() || fs::is_directory(log.parent_path(), ignored);
    diagnosis.Add(Verdict::Wrong, aboutLog, log,
                  std::string(hasFolder ? "cannot be written" : "cannot be written, since its folder is not there") +
                      "; such a failure (" + lytError("OpeningFailed") + ") may end the word processor",
                  std::string(hasFolder ? "let the users write it" : "make the folder") +
                      ", or set level=0 in the section [LogLevel] of lyt.ini");
}

} // namespace

void JudgeLog(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis)
{
    const fs::path& file = deployment.configuration.chosen;
    const LanguageKey* const key = configuration.Find("LogLevel", "level");
    const ClytSpan place = key != nullptr ? PlaceOfValue(*key) : ClytSpan();
    const int level = configuration.LogLevel();
    if (key != nullptr && !IsNumber(key->text))
        diagnosis.Add({Verdict::Warning, aboutLog, file.string(), place,
                       "the level \"" + commandline::ToUtf8(key->text) + "\" is no number, and counts as " +
                           std::to_string(level),
                       "write level=0, or the highest level that is to be logged"});
    if (level == 0)
        diagnosis.Add({Verdict::Good, aboutLog, file.string(), place, "level 0: no log is written", ""});
    else if (deployment.document.empty())
        diagnosis.Add({Verdict::Warning, aboutLog, file.string(), place,
                       "level " + std::to_string(level) +
                           ": a log is written beside each document, and one that cannot be written may end the word "
                           "processor",
                       "name a document with --document to have its folder judged, or write level=0"});
    else
        JudgeLogOf(deployment.document, diagnosis);
}

} // namespace lytdlg
