// The command that judges descriptions.
#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/Commands.h"
#include "lytdlg/judge/Baseline.h"
#include "lytdlg/judge/Fixes.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/text/Diff.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Watch.h"
#include "lytdlg/try/Against.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <tuple>

namespace lytdlg
{

namespace
{

std::string FolderOf(const std::string& path)
{
    if (path == standardInput)
        return "";
    const std::string folder = PathOf(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

// What a word after an option means.
template <class MEANING>
MEANING MeaningOf(const std::string& word, const std::vector<std::pair<std::string, MEANING>>& meanings,
                  const std::string& what)
{
    std::vector<std::string> known;
    for (const auto& [text, meaning] : meanings)
    {
        if (text == word)
            return meaning;
        known.push_back(text);
    }
    throw commandline::UsageError("there is no " + what + " \"" + word + "\"; " + commandline::Suggestion(word, known));
}

std::unique_ptr<Report> ReportFor(const std::string& format)
{
    static const std::vector<std::pair<std::string, std::unique_ptr<Report> (*)()>> formats = {
        {"text", MakeTextReport}, {"gcc", MakeGccReport}, {"json", MakeJsonReport}, {"sarif", MakeSarifReport}};
    return MeaningOf(format, formats, "format")();
}

Level LevelOf(const std::string& word)
{
    static const std::vector<std::pair<std::string, Level>> levels = {
        {"error", Level::Error}, {"warning", Level::Warning}, {"note", Level::Note}};
    return MeaningOf(word, levels, "level");
}

Fixing FixingOf(const Request& request)
{
    const Fixing fixing = request.Has("--fix=all") ? Fixing::All
                          : request.Has("--fix")   ? Fixing::Safe
                                                   : Fixing::Nothing;
    const bool isTrial = request.Has("--dry-run");
    const std::string format = request.Text("--format", "text");
    if (isTrial && fixing == Fixing::Nothing)
        throw commandline::UsageError("--dry-run shows what --fix would change; write --fix as well");
    if (isTrial && format != "text")
        throw commandline::UsageError("--dry-run shows a text; leave --format " + format + " out");
    const auto isInput = [](const std::string& operand) { return operand == standardInput; };
    if (fixing != Fixing::Nothing && !isTrial && std::ranges::any_of(request.operands, isInput))
        throw commandline::UsageError("the standard input cannot be mended where it is; name the file, or add "
                                      "--dry-run to see what would change");
    return fixing;
}

// One run of the command: where its findings go.
class Checker
{
public:
    explicit Checker(const Request& asked)
        : m_request(asked),
          m_report(ReportFor(asked.Text("--format", "text"))),
          m_level(LevelOf(asked.Text("--level", "note"))),
          m_fixing(FixingOf(asked)),
          m_shared(m_fixing)
    {
        if (asked.Has("--baseline"))
            m_known = Baseline(asked.Text("--baseline", ""));
    }

    void JudgeAt(const std::string& path)
    {
        const std::string name = path == standardInput ? m_request.Text("--as", standardInput) : path;
        const Surroundings& surroundings = SurroundingsIn(FolderOf(name));
        const std::string bytes = ReadDescription(path);
        const std::vector<std::string> defines = m_request.Texts("--define");
        const MendedText mended = MendDescription(Description(name, bytes, defines), surroundings, m_fixing);
        Keep(name, bytes, mended);
        const Description description(name, mended.text, defines);
        Findings findings = Judge(description, surroundings);
        m_shared.TakeFrom(findings);
        findings.Remove([&](const Finding& finding)
                        { return finding.rule->level > m_level || IsToldAgain(finding, description.path); });
        m_found.Add(description, findings);
        m_known.Subtract(description, findings);
        findings.Fold();
        m_report->Add(description, findings);
        Count(findings);
    }

    ExitCode End()
    {
        for (const auto& [path, mended] : m_shared.Mended())
            Keep(path, ReadWholeFile(PathOf(path)).value_or(""), mended);
        m_report->End(m_counts);
        if (!m_request.Has("--write-baseline"))
            return m_counts.errors + m_counts.warnings == 0 ? good : found;
        m_found.Write(m_request.Text("--write-baseline", ""));
        return good;
    }

private:
    // Shows or writes what was mended.
    void Keep(const std::string& path, const std::string& before, const MendedText& mended)
    {
        if (mended.text == before)
            return;
        if (m_request.Has("--dry-run"))
        {
            std::fputs(DiffOf(path, before, mended.text).c_str(), stdout);
            return;
        }
        ReplaceWholeFile(PathOf(path), before, mended.text);
        const std::string told =
            path + ": " + std::to_string(mended.count) + (mended.count == 1 ? " finding" : " findings") + " mended";
        m_request.Text("--format", "text") == "text" ? commandline::PrintLine(told) : TellError(told);
    }

    // A language file belongs to all descriptions of its folder, and its encoding to all its lines.
    bool IsToldAgain(const Finding& finding, const std::string& description)
    {
        if (finding.path.empty())
            return false;
        const bool isOfFile = IsOfEncoding(*finding.rule);
        const ClytSpan place = isOfFile ? ClytSpan() : finding.place;
        const auto [told, isNew] = m_told.try_emplace(
            {finding.path, place.line, place.column, finding.rule, isOfFile ? "" : finding.message}, description);
        return !isNew && !(isOfFile && told->second == description);
    }

    // Kept from one description of a folder to the next.
    const Surroundings& SurroundingsIn(const std::string& folder)
    {
        if (!m_surroundings || m_surroundings->folder != folder)
            m_surroundings.emplace(SurroundingsOf(folder, m_request.Texts("--partners")));
        return *m_surroundings;
    }

    void Count(const Findings& findings)
    {
        ++m_counts.files;
        for (const Finding& finding : findings.All())
        {
            switch (finding.rule->level)
            {
            case Level::Error: ++m_counts.errors; break;
            case Level::Warning: ++m_counts.warnings; break;
            case Level::Note: ++m_counts.notes; break;
            }
        }
    }

    const Request& m_request; // of the caller
    std::optional<Surroundings> m_surroundings;
    std::unique_ptr<Report> m_report;
    const Level m_level;
    const Fixing m_fixing;
    SharedFixes m_shared;
    // What was found in language files, and for which description.
    std::map<std::tuple<std::string, int, int, const Rule*, std::string>, std::string> m_told;
    Baseline m_known;
    Baseline m_found;
    Counts m_counts;
};

ExitCode ListRules(const std::string& format)
{
    std::fputs((format == "markdown" ? RulePage() : RuleList()).c_str(), stdout);
    return good;
}

ExitCode Explain(const std::string& id)
{
    const Rule* rule = FindRule(id);
    if (rule == nullptr)
        throw commandline::UsageError("there is no rule \"" + id + "\"; " + HintForRule(id));
    std::fputs(Explanation(*rule).c_str(), stdout);
    return good;
}

ExitCode JudgeAll(const Request& request)
{
    if (request.Has("--as") && std::ranges::find(request.operands, standardInput) == request.operands.end())
        throw commandline::UsageError("--as names what the standard input holds; write - as well");
    Checker checker(request);
    const auto judge = [&](const std::string& path)
    {
        checker.JudgeAt(path);
        return good;
    };
    const ExitCode reading = ForEachDescription(request.operands, judge);
    return std::max(reading, checker.End());
}

ExitCode Check(const Request& request)
{
    if (request.Has("--rules"))
        return ListRules(request.Text("--format", "text"));
    if (request.Has("--explain"))
        return Explain(request.Text("--explain", ""));
    if (request.operands.empty())
        throw commandline::UsageError("something is missing after \"check\"; write: lytdlg check PATH...");
    return DoWatching(request, request.Has("--against") ? CompareWithVersion : JudgeAll);
}

} // namespace

Command CheckCommand()
{
    return {{"check",
             "PATH...",
             0,
             SIZE_MAX,
             "find all mistakes in descriptions (files, folders, - for standard input)",
             {{"--format", "FORMAT", false,
               "text (default), gcc (a line for each finding), json, or sarif (version 2.1.0)"},
              {"--level", "LEVEL", false,
               "print only errors (error), warnings as well (warning), or notes as well (note, default)"},
              {"--as", "FILE", false, "the file that the standard input replaces: its folder has the language files"},
              {"--fix", nullptr, false, "fix what can be fixed without changing anything that works"},
              {"--fix=all", nullptr, false, "make every fix that is one replacement, even guesses"},
              {"--dry-run", nullptr, false, "only show what --fix would change"},
              watchOption,
              {"--define", "WORD", false, "read the lines that this define switches on; may be given more than once"},
              {"--partners", "FOLDER", false, "a folder that holds partner libraries; may be given more than once"},
              {"--baseline", "FILE", false, "omit the findings that this file lists as known"},
              {"--write-baseline", "FILE", false, "write the findings to a file for --baseline, and end with 0"},
              {"--against", "VERSION", false,
               "compare how the dialogs read texts with the record of that version, lyt64-VERSION.json beside them"},
              {"--update", nullptr, false, "with --against, write that record"},
              {"--rules", nullptr, false, "list the rules; with --format markdown as a page"},
              {"--explain", "RULE", false, "explain a rule, with a wrong and a right example"}}},
            Check};
}

} // namespace lytdlg
