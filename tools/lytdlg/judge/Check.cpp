// The command that judges descriptions.
#include "commandline/CommandLine.h"
#include "lytdlg/Commands.h"
#include "lytdlg/judge/Baseline.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <optional>

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

std::unique_ptr<Report> ReportFor(const std::string& format)
{
    static const std::vector<std::pair<std::string, std::unique_ptr<Report> (*)()>> formats = {
        {"text", MakeTextReport}, {"json", MakeJsonReport}, {"sarif", MakeSarifReport}};
    std::vector<std::string> known;
    for (const auto& [word, make] : formats)
    {
        if (format == word)
            return make();
        known.push_back(word);
    }
    throw commandline::UsageError("there is no format \"" + format + "\"; " + commandline::Suggestion(format, known));
}

// One run of the command: where its findings go.
class Checker
{
public:
    explicit Checker(const Request& asked) : m_request(asked), m_report(ReportFor(asked.Text("--format", "text")))
    {
        if (asked.Has("--baseline"))
            m_known = Baseline(asked.Text("--baseline", ""));
    }

    void JudgeAt(const std::string& path)
    {
        const Description description(path, ReadDescription(path), m_request.Texts("--define"));
        Findings findings = Judge(description, SurroundingsIn(FolderOf(path)));
        m_found.Add(description, findings);
        m_known.Subtract(description, findings);
        m_report->Add(description, findings);
        Count(findings);
    }

    ExitCode End()
    {
        m_report->End(m_counts);
        if (!m_request.Has("--write-baseline"))
            return m_counts.errors + m_counts.warnings == 0 ? good : found;
        m_found.Write(m_request.Text("--write-baseline", ""));
        return good;
    }

private:
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

ExitCode Check(const Request& request)
{
    if (request.Has("--rules"))
        return ListRules(request.Text("--format", "text"));
    if (request.Has("--explain"))
        return Explain(request.Text("--explain", ""));
    if (request.operands.empty())
        throw commandline::UsageError("something is missing after \"check\"; write: lytdlg check PATH...");
    Checker checker(request);
    const auto judge = [&](const std::string& path)
    {
        checker.JudgeAt(path);
        return good;
    };
    const ExitCode reading = ForEachDescription(request.operands, judge);
    return std::max(reading, checker.End());
}

} // namespace

Command CheckCommand()
{
    return {{"check",
             "PATH...",
             0,
             SIZE_MAX,
             "judge descriptions (files, folders, - for standard input): all that is wrong with them",
             {{"--format", "FORMAT", false, "text (default), json, or sarif (version 2.1.0)"},
              {"--define", "WORD", false, "read the lines that this define switches on; may be given more than once"},
              {"--partners", "FOLDER", false, "a folder that holds partner libraries; may be given more than once"},
              {"--baseline", "FILE", false, "pass over the findings that this file tells as known"},
              {"--write-baseline", "FILE", false, "write the findings to such a file, and end with 0"},
              {"--rules", nullptr, false, "list the rules; as a page with --format markdown"},
              {"--explain", "RULE", false, "explain a rule, with a wrong and a right example"}}},
            Check};
}

} // namespace lytdlg
