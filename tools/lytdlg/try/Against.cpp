#include "lytdlg/try/Against.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/doctor/Deployment.h"
#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/trip/GeneratedTrips.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/TrialRun.h"
#include "model/ClytWords.h"

#include <filesystem>
#include <nlohmann/json.hpp>

namespace lytdlg
{

using commandline::PrintLine;
using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

constexpr size_t mostTexts = 8;

std::string ShownIn(const DialogState& state)
{
    std::string shown;
    for (const ControlState& control : state.controls)
    {
        if (control.name.empty())
            continue;
        shown += (shown.empty() ? "" : ", ") + ToUtf8(control.name);
        shown += control.value ? " " + Quoted(ToUtf8(*control.value)) : "";
        shown += control.isEnabled ? "" : " disabled";
        shown += control.isShown ? "" : " hidden";
    }
    return shown;
}

// What the dialog of the setup makes of a text, which is in UTF-8.
Json MadeOf(Setup setup, const std::string& text)
{
    setup.input = commandline::AsAnsi(text);
    TrialRun run(setup, false);
    Json made = {{"text", text}, {"shown", ""}, {"composed", ""}};
    const auto look = [&](TrialDialog& dialog)
    {
        made["shown"] = ShownIn(LookAt(dialog));
        CString composed;
        if (dialog.ComposeNamedOutput(lytParentName, composed) != 0)
            made["composed"] = ToUtf8(composed.GetString());
    };
    const Outcome& outcome = run.Run({}, look);
    if (outcome.ending == Ending::NotOpened)
        made["shown"] = "message " + outcome.failureNumber;
    return made;
}

std::vector<std::string> TextsFor(const Description& description)
{
    std::vector<std::string> texts = {""};
    if (!description.mistakes.empty())
        return texts;
    for (const GeneratedTrip& trip : GenerateTrips(description).trips)
    {
        if (texts.size() < mostTexts)
            texts.push_back(ToUtf8(trip.text));
    }
    return texts;
}

// What a version makes of the dialogs of a folder.
class VersionRecord
{
public:
    VersionRecord(const std::string& version, const std::string& operand)
        : m_version(version),
          m_folder(std::filesystem::is_directory(PathOf(operand)) ? PathOf(operand) : PathOf(operand).parent_path()),
          m_file(m_folder / ("lyt64-" + version + ".json"))
    {
    }

    void Read()
    {
        const std::optional<std::string> bytes = ReadWholeFile(m_file);
        if (!bytes)
            throw commandline::UsageError(m_file.string() + " is not there; lytdlg of version " + m_version +
                                          " writes it, with --update");
        m_dialogs = Json::parse(*bytes, nullptr, false);
        if (!m_dialogs.is_object())
            throw commandline::UsageError(m_file.string() + " is not as lytdlg writes it, with --update");
    }
    void Write() const { WriteWholeFile(m_file, m_dialogs.dump(1) + "\n"); }

    void Take(const std::string& path, const Setup& setup)
    {
        const std::string bytes = ReadDescription(path);
        Json made = Json::array();
        for (const std::string& text : TextsFor(Description(path, bytes, setup.defines)))
            made.push_back(MadeOf(setup, text));
        m_dialogs[NameOf(path)] = {{"sum", ChecksumOf(bytes)}, {"texts", made}};
    }

    // Prints each text that is read differently, and returns true if no text is. `texts` counts all.
    bool Compare(const std::string& path, const Setup& setup, size_t& texts) const
    {
        const auto known = m_dialogs.find(NameOf(path));
        if (known == m_dialogs.end() || known->value("sum", "") != ChecksumOf(ReadDescription(path)))
        {
            PrintLine(path + (known == m_dialogs.end() ? " is not in " : " was changed after ") + m_file.string() +
                      (known == m_dialogs.end() ? "" : " was written") + ", and is not compared");
            return true;
        }
        bool isSame = true;
        for (const Json& before : known->value("texts", Json::array()))
        {
            ++texts;
            isSame = PrintDifference(path, before, MadeOf(setup, before.value("text", ""))) && isSame;
        }
        return isSame;
    }

private:
    std::string NameOf(const std::string& path) const
    {
        return PathOf(path).lexically_relative(m_folder).generic_string();
    }

    bool PrintDifference(const std::string& path, const Json& before, const Json& now) const
    {
        bool isSame = true;
        for (const char* what : {"shown", "composed"})
        {
            const std::string then = before.value(what, "");
            const std::string made = now.value(what, "");
            if (then == made)
                continue;
            isSame = false;
            PrintLine(path + ": of " + Quoted(before.value("text", "")) + " is " + what);
            PrintLine("  in " + m_version + ": " + then);
            PrintLine("  now: " + made);
        }
        return isSame;
    }

    std::string m_version;
    std::filesystem::path m_folder;
    std::filesystem::path m_file;
    Json m_dialogs = Json::object();
};

} // namespace

ExitCode CompareWithVersion(const Request& request)
{
    const std::string version = request.Text("--against", "");
    const bool isWriting = request.Has("--update");
    if (isWriting && version != commandline::projectVersion)
        throw commandline::UsageError(std::string("this is version ") + commandline::projectVersion +
                                      ", which cannot know what " + version + " makes of a dialog");
    size_t dialogs = 0;
    size_t texts = 0;
    size_t differing = 0;
    ExitCode code = good;
    for (const std::string& operand : request.operands)
    {
        VersionRecord record(version, operand);
        if (!isWriting)
            record.Read();
        const auto act = [&](const std::string& path)
        {
            ++dialogs;
            const Setup setup = {.dialog = path, .defines = request.Texts("--define")};
            if (isWriting)
                record.Take(path, setup);
            else if (!record.Compare(path, setup, texts))
                ++differing;
            return good;
        };
        code = std::max(code, ForEachDescription({operand}, act));
        if (isWriting)
            record.Write();
    }
    const std::string count = std::to_string(dialogs) + (dialogs == 1 ? " dialog" : " dialogs");
    PrintLine(isWriting ? count + " written down as of " + version
                        : count + " and " + std::to_string(texts) + " texts compared with " + version + ": " +
                              std::to_string(differing) + " differ");
    return std::max(code, differing == 0 ? good : found);
}

} // namespace lytdlg
