#include "commandline/Text.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Uri.h"

#include <nlohmann/json.hpp>

namespace lytdlg
{

namespace
{

class JsonReport : public Report
{
public:
    void Add(const Description& description, const Findings& findings) override
    {
        for (const Finding& finding : findings.All())
        {
            Json told = {{"path", PathOf(finding, description)},
                         {"line", finding.place.line},
                         {"column", finding.place.column + 1},
                         {"length", finding.place.length},
                         {"level", WordOf(finding.rule->level)},
                         {"rule", finding.rule->id},
                         {"message", commandline::ToUtf8(finding.message)},
                         {"hint", commandline::ToUtf8(finding.hint)}};
            if (!finding.number.empty())
                told["number"] = finding.number;
            AddFix(finding, told);
            for (const Finding& other : finding.more)
            {
                Json also = PlaceOf(other.place);
                also["message"] = commandline::ToUtf8(other.message);
                AddFix(other, also);
                told["more"].push_back(std::move(also));
            }
            m_findings.push_back(std::move(told));
        }
    }

    void End(const Counts& counts) override
    {
        PrintJson({{"descriptions", counts.files},
                   {"errors", counts.errors},
                   {"warnings", counts.warnings},
                   {"notes", counts.notes},
                   {"findings", m_findings}});
    }

private:
    static Json PlaceOf(const ClytSpan& place)
    {
        return {{"line", place.line}, {"column", place.column + 1}, {"length", place.length}};
    }

    static void AddFix(const Finding& finding, Json& told)
    {
        if (!finding.fix)
            return;
        told["fix"] = PlaceOf(finding.fix->place);
        told["fix"]["text"] = commandline::ToUtf8(finding.fix->text);
        told["fix"]["safe"] = finding.fix->isSafe;
    }

    Json m_findings = Json::array();
};

// The form that tools for reviews and editors exchange: SARIF 2.1.0.
class SarifReport : public Report
{
public:
    void Add(const Description& description, const Findings& findings) override
    {
        for (const Finding& finding : findings.All())
            m_results.push_back(ResultOf(finding, description));
    }

    void End(const Counts& /*counts*/) override
    {
        const Json driver = {{"name", "lytdlg"}, {"rules", RulesOf()}};
        const Json run = {{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", m_results}};
        PrintJson({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                   {"version", "2.1.0"},
                   {"runs", Json::array({run})}});
    }

private:
    static Json RulesOf()
    {
        Json rules = Json::array();
        for (const Rule& rule : Rules())
            rules.push_back({{"id", rule.id},
                             {"shortDescription", {{"text", rule.summary}}},
                             {"fullDescription", {{"text", rule.reason}}},
                             {"defaultConfiguration", {{"level", WordOf(rule.level)}}}});
        return rules;
    }

    static Json ResultOf(const Finding& finding, const Description& description)
    {
        const Json file = {{"uri", UriOf(PathOf(finding, description))}};
        const Json place = {{"artifactLocation", file},
                            {"region", RegionOf(finding.place, std::max(1, finding.place.length))}};
        const std::string hint = finding.hint.empty() ? "" : "; " + finding.hint;
        Json result = {{"ruleId", finding.rule->id},
                       {"level", WordOf(finding.rule->level)},
                       {"message", {{"text", commandline::ToUtf8(WholeMessageOf(finding) + hint)}}},
                       {"locations", Json::array({{{"physicalLocation", place}}})}};
        if (finding.fix)
            result["fixes"] = Json::array({FixOf(*finding.fix, file)});
        return result;
    }

    static Json RegionOf(const ClytSpan& place, int length)
    {
        return {{"startLine", std::max(1, place.line)},
                {"startColumn", place.column + 1},
                {"endColumn", place.column + 1 + length}};
    }

    static Json FixOf(const Fix& fix, const Json& file)
    {
        const Json replacement = {{"deletedRegion", RegionOf(fix.place, fix.place.length)},
                                  {"insertedContent", {{"text", commandline::ToUtf8(fix.text)}}}};
        const Json change = {{"artifactLocation", file}, {"replacements", Json::array({replacement})}};
        return {{"artifactChanges", Json::array({change})}};
    }

    Json m_results = Json::array();
};

} // namespace

std::unique_ptr<Report> MakeJsonReport()
{
    return std::make_unique<JsonReport>();
}

std::unique_ptr<Report> MakeSarifReport()
{
    return std::make_unique<SarifReport>();
}

} // namespace lytdlg
