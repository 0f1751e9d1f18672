#include "lytcall/SavedReport.h"

#include "commandline/Text.h"
#include "commandline/Unicode.h"

// The streams would double the size of the program.
#define JSON_NO_IO
#include <nlohmann/json.hpp>

#include <algorithm>

namespace lytcall
{

namespace
{

using Json = nlohmann::json;

ReportLines LinesOfJson(const Json& report)
{
    ReportLines lines;
    for (const Json& block : report.value("blocks", Json::array()))
        std::ranges::copy(block.value("lines", ReportLines()), std::back_inserter(lines));
    return lines;
}

// JSON of another form has no lines.
ReportLines LinesOfReport(const std::string& text)
try
{
    const Json report = Json::parse(text, nullptr, false);
    return report.is_object() ? LinesOfJson(report) : commandline::LinesOf(text);
}
catch (const Json::exception&)
{
    return {};
}

} // namespace

std::optional<ReportLines> ReadSavedReport(const std::string& bytes)
{
    ReportLines lines = LinesOfReport(commandline::FromMarkedUnicode(bytes));
    // Any report has several blocks; a text of another kind is at most the first.
    constexpr size_t fewestBlocks = 3;
    if (CutReport(lines).size() < fewestBlocks)
        return std::nullopt;
    return lines;
}

} // namespace lytcall
