#include "commandline/Text.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/TextFile.h"

#include <nlohmann/json.hpp>

#include <cctype>

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
        const Json region = {{"startLine", std::max(1, finding.place.line)},
                             {"startColumn", finding.place.column + 1},
                             {"endColumn", finding.place.column + 1 + std::max(1, finding.place.length)}};
        const Json place = {{"artifactLocation", {{"uri", UriOf(PathOf(finding, description))}}}, {"region", region}};
        const std::string hint = finding.hint.empty() ? "" : "; " + finding.hint;
        return {{"ruleId", finding.rule->id},
                {"level", WordOf(finding.rule->level)},
                {"message", {{"text", commandline::ToUtf8(finding.message + hint)}}},
                {"locations", Json::array({{{"physicalLocation", place}}})}};
    }

    // A relative reference, or that of a file; what is no plain letter of an address is written in numbers.
    static std::string UriOf(const std::string& path)
    {
        const std::string plain = "-._~/:";
        std::string uri;
        for (const char ch : path)
        {
            const auto byte = static_cast<unsigned char>(ch);
            if (ch == '\\')
                uri += '/';
            else if ((byte < 0x80 && std::isalnum(byte) != 0) || plain.find(ch) != std::string::npos)
                uri += ch;
            else
                uri += std::string("%") + "0123456789ABCDEF"[byte >> 4] + "0123456789ABCDEF"[byte & 15];
        }
        const bool hasDrive = uri.size() > 1 && uri[1] == ':';
        return uri.starts_with('/') ? "file://" + uri : hasDrive ? "file:///" + uri : uri;
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
