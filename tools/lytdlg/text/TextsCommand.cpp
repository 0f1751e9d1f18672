#include "lytdlg/Commands.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/text/Encoding.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/TextTable.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <stdexcept>

namespace lytdlg
{

namespace
{

using Cells = std::vector<std::string>;

std::string UsesOf(const TextRow& row)
{
    std::string uses;
    for (const TextUse& use : row.uses)
    {
        const std::string shown = use.file.empty() ? "the library" : use.file + ":" + std::to_string(use.line);
        uses += (uses.empty() ? "" : ", ") + shown;
    }
    return uses.empty() ? "-" : uses;
}

Cells CellsOf(const TextRow& row, const TextTable& texts)
{
    Cells cells = {row.section.empty() ? "-" : row.section, row.key.empty() ? "-" : row.key};
    for (const LanguageFile& file : texts.Languages().Files())
    {
        const LanguageKey* key = file.Find(row.section, row.key);
        cells.push_back(key != nullptr               ? "line " + std::to_string(key->place.line)
                        : texts.IsMissing(row, file) ? "missing"
                                                     : "-");
    }
    cells.push_back(UsesOf(row));
    return cells;
}

void PrintTable(const std::vector<Cells>& table)
{
    std::vector<size_t> widths(table.front().size(), 0);
    for (const Cells& cells : table)
    {
        for (size_t i = 0; i + 1 < cells.size(); ++i)
            widths[i] = std::max(widths[i], cells[i].size() + 2);
    }
    for (const Cells& cells : table)
    {
        std::string line;
        for (size_t i = 0; i < cells.size(); ++i)
            line += cells[i] + std::string(std::max(widths[i], cells[i].size()) - cells[i].size(), ' ');
        commandline::PrintLine(commandline::ToUtf8(line));
    }
}

// What is to be looked at comes once more at the end, where it is seen.
void PrintForReading(const TextTable& texts)
{
    std::vector<Cells> table = {{"SECTION", "KEY"}};
    for (const LanguageFile& file : texts.Languages().Files())
        table.front().push_back(file.Language());
    table.front().push_back("USED BY");
    std::vector<std::string> remarks;
    for (const TextRow& row : texts.Rows())
    {
        table.push_back(CellsOf(row, texts));
        for (const std::string& remark : row.remarks)
            remarks.push_back("[" + row.section + "] " + row.key + ": " + remark);
    }
    PrintTable(table);
    if (!remarks.empty())
        std::printf("\n");
    for (const std::string& remark : remarks)
        commandline::PrintLine(commandline::ToUtf8(remark));
    std::printf("\n%zu texts, %zu missing\n", texts.Rows().size(), texts.CountMissing());
}

Json JsonOf(const TextUse& use)
{
    if (use.file.empty())
        return {{"library", true}};
    return {{"file", use.file}, {"line", use.line}};
}

Json JsonOf(const TextRow& row, const LanguageFile& file, const TextTable& texts)
{
    Json told = {{"language", file.Language()}};
    if (const LanguageKey* key = file.Find(row.section, row.key))
    {
        told["line"] = key->place.line;
        told["text"] = commandline::ToUtf8(key->text);
    }
    else if (texts.IsMissing(row, file))
        told["missing"] = true;
    return told;
}

Json JsonOf(const TextRow& row, const TextTable& texts)
{
    Json told = {{"section", commandline::ToUtf8(row.section)},
                 {"key", commandline::ToUtf8(row.key)},
                 {"uses", Json::array()},
                 {"texts", Json::array()},
                 {"remarks", Json::array()}};
    for (const TextUse& use : row.uses)
        told["uses"].push_back(JsonOf(use));
    for (const LanguageFile& file : texts.Languages().Files())
        told["texts"].push_back(JsonOf(row, file, texts));
    for (const std::string& remark : row.remarks)
        told["remarks"].push_back(commandline::ToUtf8(remark));
    return told;
}

void PrintAsJson(const TextTable& texts)
{
    Json rows = Json::array();
    for (const TextRow& row : texts.Rows())
        rows.push_back(JsonOf(row, texts));
    PrintJson({{"missing", texts.CountMissing()}, {"texts", rows}});
}

// Windows itself converts a language file in UTF-16, with its mark.
bool IsReadAsItIs(const std::filesystem::path& file, const std::string& content)
{
    return ExtensionOf(file.string()) == ".nls" && content.starts_with("\xFF\xFE");
}

bool Encode(const std::filesystem::path& file)
{
    const std::optional<std::string> content = ReadWholeFile(file);
    if (!content)
    {
        TellError("cannot read " + file.string() + "; check its rights");
        return false;
    }
    try
    {
        const std::string converted = IsReadAsItIs(file, *content) ? *content : InCodePage(*content);
        if (converted == *content)
            return true;
        ReplaceWholeFile(file, *content, converted);
        commandline::PrintLine(file.string() + ": converted into the code page");
        return true;
    }
    catch (const std::runtime_error& failure)
    {
        TellError(file.string() + ": " + failure.what() + "; it stays as it is");
        return false;
    }
}

ExitCode EncodeAll(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files = FilesIn(folder / "lang", ".nls");
    std::ranges::move(FilesIn(folder, ".dlg"), std::back_inserter(files));
    const auto failed = std::ranges::count_if(files, [](const auto& file) { return !Encode(file); });
    return failed == 0 ? good : found;
}

ExitCode Texts(const Request& request)
{
    const std::string format = request.Text("--format", "text");
    const std::vector<std::string> formats = {"text", "json"};
    if (std::ranges::find(formats, format) == formats.end())
        throw commandline::UsageError("there is no format \"" + format + "\"; " +
                                      commandline::Suggestion(format, formats));
    const std::string folder = request.Operand(0, "");
    std::error_code ignored;
    if (!std::filesystem::is_directory(PathOf(folder), ignored))
        throw commandline::UsageError("there is no folder " + folder + "; name the folder of the dialogs");
    if (request.Has("--encode"))
        return EncodeAll(PathOf(folder));
    const TextTable texts(PathOf(folder));
    format == "json" ? PrintAsJson(texts) : PrintForReading(texts);
    return texts.CountMissing() != 0 ? found : good;
}

} // namespace

Command TextsCommand()
{
    return {{"texts",
             "FOLDER",
             1,
             1,
             "compare the language files with each other and with the dialogs; 1 when a text is missing",
             {{"--format", "FORMAT", false, "text (default) or json"},
              {"--encode", nullptr, false,
               "convert language files and dialogs from UTF-8 or UTF-16 into the code page of the library"}}},
            Texts};
}

} // namespace lytdlg
