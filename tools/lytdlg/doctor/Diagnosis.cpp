#include "lytdlg/doctor/Diagnosis.h"

#include "commandline/Text.h"
#include "lytdlg/text/TextFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <map>
#include <tuple>
#include <utility>

namespace lytdlg
{

namespace
{

constexpr int verdictWidth = 8;
constexpr int aboutWidth = 14;

// More than these are reported in one line.
constexpr size_t mostOfAKind = 3;
constexpr size_t toldAlready = 0;

using ObservedKind = std::tuple<Verdict, std::string, std::string>;

ObservedKind ObservedKindOf(const Observation& observation)
{
    return {observation.verdict, observation.about, observation.kind};
}

// The path with the place in it, and what separates both from the message.
std::string LeadOf(const Observation& observation)
{
    if (observation.path.empty())
        return "";
    std::string lead = observation.path;
    if (observation.place.line > 0)
        lead += ":" + std::to_string(observation.place.line) + ":" + std::to_string(observation.place.column + 1);
    return lead + ": ";
}

std::string Summary(const Diagnosis& diagnosis)
{
    const size_t wrong = diagnosis.CountOf(Verdict::Wrong);
    const size_t warnings = diagnosis.CountOf(Verdict::Warning);
    const std::string warned = Counted(warnings, "warning", "warnings");
    if (wrong == 0)
        return warnings == 0 ? "good" : warned;
    return std::to_string(wrong) + " wrong, " + warned;
}

Json JsonOf(const Observation& observation)
{
    Json told = {{"verdict", WordOf(observation.verdict)}, {"about", observation.about}};
    if (!observation.path.empty())
        told["path"] = observation.path;
    if (observation.place.line > 0)
    {
        told["line"] = observation.place.line;
        told["column"] = observation.place.column + 1;
    }
    told["message"] = observation.message;
    if (!observation.hint.empty())
        told["hint"] = observation.hint;
    return told;
}

} // namespace

const char* WordOf(Verdict verdict)
{
    switch (verdict)
    {
    case Verdict::Good: return "good";
    case Verdict::Note: return "note";
    case Verdict::Warning: return "warning";
    default: return "wrong";
    }
}

size_t Diagnosis::CountOf(Verdict verdict) const
{
    return static_cast<size_t>(std::ranges::count(m_observations, verdict, &Observation::verdict));
}

Verdict Diagnosis::Worst() const
{
    const auto worst = std::ranges::max_element(m_observations, {}, &Observation::verdict);
    return worst != m_observations.end() ? worst->verdict : Verdict::Good;
}

bool Diagnosis::IsWrong(const std::string& about) const
{
    return std::ranges::any_of(m_observations, [&](const Observation& each)
                               { return each.verdict == Verdict::Wrong && each.about == about; });
}

void PrintAsText(const Diagnosis& diagnosis)
{
    std::map<ObservedKind, size_t> counts;
    for (const Observation& observation : diagnosis.All())
        ++counts[ObservedKindOf(observation)];
    for (const Observation& observation : diagnosis.All())
    {
        size_t& count = counts[ObservedKindOf(observation)];
        const bool isOneOfMany = !observation.kind.empty() && (count > mostOfAKind || count == toldAlready);
        if (isOneOfMany && count == toldAlready)
            continue;
        const std::string more =
            isOneOfMany ? " (and " + std::to_string(std::exchange(count, toldAlready) - 1) + " more of this kind)" : "";
        std::printf("%-*s %-*s ", verdictWidth, WordOf(observation.verdict), aboutWidth, observation.about);
        commandline::PrintLine(LeadOf(observation) + observation.message + more);
        if (!observation.hint.empty())
            commandline::PrintLine(std::string(verdictWidth + 1 + aboutWidth, ' ') + " hint: " + observation.hint);
    }
    std::printf("verdict: %s\n", Summary(diagnosis).c_str());
}

void PrintAsJson(const Diagnosis& diagnosis)
{
    Json observations = Json::array();
    for (const Observation& observation : diagnosis.All())
        observations.push_back(JsonOf(observation));
    // A note does not change the verdict.
    PrintJson({{"verdict", WordOf(diagnosis.Worst() > Verdict::Note ? diagnosis.Worst() : Verdict::Good)},
               {"wrong", diagnosis.CountOf(Verdict::Wrong)},
               {"warnings", diagnosis.CountOf(Verdict::Warning)},
               {"observations", observations}});
}

void PrintRefusalAsJson(const std::string& reason)
{
    PrintJson({{"verdict", "not judged"}, {"message", reason}});
}

std::string Counted(size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace lytdlg
