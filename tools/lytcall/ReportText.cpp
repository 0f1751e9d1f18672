#include "lytcall/ReportText.h"

#include "commandline/Text.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <string_view>

namespace lytcall
{

namespace
{

struct BlockStart
{
    const char* beginning;
    const char* title;
};

constexpr BlockStart blockStarts[] = {
    {"PATH    :", "The workstation"},
    {"File Information:", "LYT's files and versions"},
    {"LYT Registry Settings :", "Registry"},
    {"LYT Directory Tree (", "The directory to examine"},
    {"Shell command <", "Commands and sections of lyt.ini"},
    {"Fonts Information from ", "Fonts"},
    {"LOCALE.", "Locale and languages"},
};

// The title of the block that begins with this line; empty when none does.
std::string TitleOf(const std::string& line)
{
    if (line == "Printers")
        return line;
    const size_t directory = line.find(" User Template Dir ");
    if (line.starts_with("Word ") && directory != std::string::npos)
        return line.substr(0, directory);
    for (const BlockStart& start : blockStarts)
    {
        if (line.starts_with(start.beginning))
            return start.title;
    }
    return "";
}

std::string JsonText(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text)
    {
        char escaped[8] = "";
        if (c == '"' || c == '\\')
            quoted += {'\\', c};
        else if (static_cast<unsigned char>(c) < 0x20)
            quoted.append(escaped, static_cast<size_t>(std::snprintf(escaped, sizeof escaped, "\\u%04x", c)));
        else
            quoted += c;
    }
    return quoted + "\"";
}

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

std::string TextOf(const ReportLines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

std::vector<ReportBlock> CutReport(const ReportLines& lines)
{
    std::vector<ReportBlock> blocks = {{"The program and Windows", {}}};
    for (const std::string& line : lines)
    {
        const std::string title = TitleOf(line);
        // A version that is listed twice has two blocks; of other blocks several lines begin like the first.
        if (!title.empty() && (title != blocks.back().title || title.starts_with("Word ")))
            blocks.push_back({title, {}});
        blocks.back().lines.push_back(line);
    }
    return blocks;
}

std::string LabelOf(const std::string& line)
{
    for (size_t place = line.find_first_of(":="); place != std::string::npos;
         place = line.find_first_of(":=", place + 1))
    {
        const size_t start = line.find_last_of(' ', place);
        if (place - (start == std::string::npos ? 0 : start + 1) != 1)
            return line.substr(0, place);
    }
    return line;
}

bool ChangesFromRunToRun(const std::string& line)
{
    static constexpr const char* beginnings[] = {"Memory in use:", "Free physical memory", "Free paging file",
                                                 "Free virtual memory", "Free Hard Disk Space"};
    return std::ranges::any_of(beginnings, [&](const char* beginning) { return line.starts_with(beginning); });
}

std::string JsonOf(const std::vector<ReportBlock>& blocks)
{
    std::string text = "{\"blocks\": [";
    const char* betweenBlocks = "\n";
    for (const ReportBlock& block : blocks)
    {
        text += betweenBlocks + ("  {\"title\": " + JsonText(block.title)) + ", \"lines\": [";
        const char* betweenLines = "\n";
        for (const std::string& line : block.lines)
        {
            text += betweenLines + ("    " + JsonText(line));
            betweenLines = ",\n";
        }
        text += "]}";
        betweenBlocks = ",\n";
    }
    return text + "]}\n";
}

std::string JsonOfRefusal(const std::string& reason)
{
    return "{\n  \"verdict\": \"not judged\",\n  \"message\": " + JsonText(reason) + "\n}\n";
}

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
