#include "lytdlg/language/CaseEdits.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "lytdlg/language/Places.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace fs = std::filesystem;

using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

// A file of cases, and what its lines say before the first one.
struct CaseFile
{
    std::string path;
    std::string content;
    Setup common = {};
};

bool BeginsCase(const std::string& line)
{
    return Trimmed(line).starts_with("case:") || Trimmed(line).starts_with("case :");
}

// Nothing where the file is a single case: another one would begin with its steps.
std::optional<CaseFile> FileWithCases(const Workspace& workspace, const std::string& path)
{
    CaseFile file = {path, workspace.BytesOf(path)};
    std::vector<std::string> lines = commandline::LinesOf(script::ScriptText(file.content));
    const auto first = std::find_if(lines.begin(), lines.end(), BeginsCase);
    if (first == lines.end())
        return {};
    lines.erase(first, lines.end());
    try
    {
        file.common = ReadCases(path, lines).front().setup;
    }
    catch (const commandline::UsageError&)
    {
        // Its cases name the dialog themselves.
        return file;
    }
    return file;
}

CaseFile FileFor(const Workspace& workspace, const std::string& dialog)
{
    std::vector<GoldenCase> cases = CasesOf(workspace, dialog);
    std::ranges::reverse(cases);
    for (const GoldenCase& one : cases)
    {
        if (std::optional<CaseFile> file = FileWithCases(workspace, PlainPath(one.file)))
            return *std::move(file);
    }
    const fs::path folder = PathOf(dialog).parent_path();
    const fs::path beside = folder.parent_path() / "cases";
    const fs::path stem = (fs::is_directory(beside) ? beside : folder) / PathOf(dialog).stem();
    fs::path file = stem;
    for (int number = 2; ReadWholeFile(PathOf(file.string() + ".case")); ++number)
        file = stem.string() + "-" + std::to_string(number);
    return {PlainPath(file.string() + ".case"), ""};
}

std::string HeadOf(const CaseFile& file, const Setup& setup)
{
    const fs::path folder = PathOf(file.path).parent_path();
    const auto pathOf = [&](const std::string& name)
    { return Quoted(PathOf(name).lexically_relative(folder).generic_string()); };
    std::string head;
    if (file.common.dialog.empty() || PlainPath(file.common.dialog) != setup.dialog)
        head += "dialog: " + pathOf(setup.dialog) + "\n";
    if (setup.language != file.common.language)
        head += "language: " + Quoted(ToUtf8(setup.language)) + "\n";
    if (setup.input != file.common.input)
        head += "input: " + Quoted(ToUtf8(setup.input)) + "\n";
    for (const std::string& define : setup.defines)
        head += "define: " + Quoted(ToUtf8(define)) + "\n";
    for (const ItemsOption& items : setup.items)
        head += "items " + ToUtf8(items.control) + " = " + pathOf(items.file) + "\n";
    return head;
}

std::string MessagesAfter(const PlayedTrial& played, int act)
{
    std::string lines;
    for (const PlayedMessage& message : played.messages)
    {
        if (message.act == act)
            lines += Describe({ExpectationKind::Message, "", ToUtf8(message.text)}) + "\n";
    }
    return lines;
}

std::string EndingOf(const PlayedTrial& played)
{
    const Outcome& outcome = played.outcome;
    if (outcome.ending == Ending::Confirmed)
        return Describe({ExpectationKind::Result, "", ToUtf8(outcome.text)}) + "\n";
    std::string lines;
    if (outcome.ending == Ending::NotOpened && !outcome.failureNumber.empty())
        lines = Describe({ExpectationKind::Error, "", outcome.failureNumber}) + "\n";
    lines += Describe({ExpectationKind::Ending, "", WordOf(outcome.ending)}) + "\n";
    if (outcome.ending != Ending::Open || played.windows.empty())
        return lines;
    const PlayedWindow& top = played.windows.back();
    for (size_t index = 0; index < top.state.controls.size(); ++index)
    {
        const ControlState& control = top.state.controls[index];
        if (top.isNamed[index] && lytTypeOf(control.type).hasValue)
            lines += Describe({ExpectationKind::Value, control.name, ToUtf8(control.value.value_or(""))}) + "\n";
    }
    return lines;
}

} // namespace

EditsByPath AddedCase(const Workspace& workspace, const Play& play, const std::string& name)
{
    const PlayedTrial played = PlayAndSee(play, false);
    if (played.failed)
        throw std::runtime_error(played.failed->reason);
    const CaseFile file = FileFor(workspace, play.setup.dialog);
    std::string lines = "case: " + Quoted(name) + "\n" + HeadOf(file, play.setup) + MessagesAfter(played, -1);
    for (size_t act = 0; act < play.acts.size(); ++act)
        lines += Trimmed(play.acts[act]) + "\n" + MessagesAfter(played, static_cast<int>(act));
    lines += EndingOf(played);
    const std::string before = file.content.empty() ? "" : file.content.ends_with('\n') ? "\n" : "\n\n";
    const TextPosition end = PositionAt(file.content, file.content.size());
    return {{file.path, {{{end, end}, commandline::ToAnsi(before + lines)}}}};
}

} // namespace lytdlg
