#include "lytdlg/text/FmtCommand.h"

#include "commandline/Text.h"
#include "lytdlg/text/BinaryStream.h"
#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/text/FileForLibrary.h"
#include "lytdlg/text/Format.h"
#include "lytdlg/text/LineDiff.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <optional>

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

enum class Task
{
    Write,
    Check,
    Diff
};

Task TaskOf(const Request& request)
{
    if (request.Has("--check") && request.Has("--diff"))
        throw commandline::UsageError("--check and --diff exclude each other; give one of them");
    return request.Has("--check") ? Task::Check : request.Has("--diff") ? Task::Diff : Task::Write;
}

// A description with its form; nothing, and a word about it, when it has none.
std::optional<std::string> FormOf(const std::string& name, const fs::path& file, const std::string& content)
{
    try
    {
        return FormattedDescription(file, content);
    }
    catch (const TooManyDefines& failure)
    {
        TellError(name + " " + failure.what() + "; it is left as it is");
        return std::nullopt;
    }
}

ExitCode FormatInput(Task task)
{
    const std::string content = ReadDescription(standardInput);
    const FileForLibrary file(content);
    const std::optional<std::string> form = FormOf("the standard input", file.Name(), content);
    const std::string& text = form ? *form : content;
    if (task == Task::Write)
        WriteBytes(text);
    else if (task == Task::Diff)
        WriteBytes(LineDiff(standardInput, content, text));
    else if (text != content)
        std::printf("%s\n", standardInput);
    return form && (task == Task::Write || text == content) ? good : found;
}

ExitCode FormatFile(const std::string& name, Task task)
{
    const std::string content = ReadDescription(name);
    const std::optional<std::string> form = FormOf(name, PathOf(name), content);
    if (!form)
        return found;
    if (*form == content)
        return good;
    if (task == Task::Diff)
        WriteBytes(LineDiff(commandline::Printable(name), content, *form));
    if (task == Task::Check)
        commandline::PrintLine(name);
    if (task != Task::Write)
        return found;
    ReplaceWholeFile(PathOf(name), content, *form);
    commandline::PrintLine(name + ": formatted");
    return good;
}

ExitCode Format(const Request& request)
{
    const Task task = TaskOf(request);
    return ForEachDescription(request.operands, [&](const std::string& name)
                              { return name == standardInput ? FormatInput(task) : FormatFile(name, task); });
}

} // namespace

Command FmtCommand()
{
    return {{"fmt",
             "PATH...",
             1,
             1000,
             "bring descriptions into their one form; - reads the standard input",
             {{"--check", nullptr, false, "only list the files that would change, and end with 1 if there are any"},
              {"--diff", nullptr, false, "only show what would change, and end with 1 if anything would"}}},
            Format};
}

} // namespace lytdlg
