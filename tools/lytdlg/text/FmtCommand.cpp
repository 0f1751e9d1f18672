#include "lytdlg/Commands.h"

#include "commandline/Program.h"
#include "commandline/Text.h"
#include "lytdlg/text/DescriptionLines.h"
#include "lytdlg/text/DescriptionPaths.h"
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
    Check
};

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
        commandline::WriteBytes(text);
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
    if (task == Task::Check)
    {
        commandline::PrintLine(name);
        return found;
    }
    ReplaceWholeFile(PathOf(name), content, *form);
    commandline::PrintLine(name + ": formatted");
    return good;
}

ExitCode Format(const Request& request)
{
    const Task task = request.Has("--check") ? Task::Check : Task::Write;
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
             "make the spacing of descriptions uniform; - reads the standard input",
             {{"--check", nullptr, false, "only list the files that would change, and end with 1 if there are any"}}},
            Format};
}

} // namespace lytdlg
