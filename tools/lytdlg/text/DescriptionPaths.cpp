#include "lytdlg/text/DescriptionPaths.h"

#include "commandline/Program.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace lytdlg
{

namespace fs = std::filesystem;

std::vector<std::string> DescriptionsAt(const std::string& operand)
{
    std::error_code ignored;
    if (operand == standardInput)
        return {operand};
    if (!fs::exists(PathOf(operand), ignored))
        throw commandline::UsageError("there is no file or folder " + operand +
                                      "; name descriptions, their folder, or - for the standard input");
    if (fs::is_regular_file(PathOf(operand), ignored))
        return {operand};
    if (!fs::is_directory(PathOf(operand), ignored))
        throw commandline::UsageError(operand +
                                      " is neither a file nor a folder; read it as - from the standard input");
    std::vector<std::string> names;
    for (const fs::path& file : FilesBelow(PathOf(operand), {".dlg"}))
        names.push_back(file.string());
    if (names.empty())
        throw commandline::UsageError("the folder " + operand +
                                      " holds no description (*.dlg); name the one that does");
    return names;
}

std::string ReadDescription(const std::string& name)
{
    if (name == standardInput)
        return commandline::ReadStandardInput();
    std::optional<std::string> content = ReadWholeFile(PathOf(name));
    if (!content)
        throw std::runtime_error("cannot read " + name + "; check its rights");
    return std::move(*content);
}

ExitCode ForEachDescription(const std::vector<std::string>& operands,
                            const std::function<ExitCode(const std::string& name)>& act)
{
    std::vector<std::string> names;
    for (const std::string& operand : operands)
        std::ranges::move(DescriptionsAt(operand), std::back_inserter(names));
    ExitCode code = good;
    for (const std::string& name : names)
    {
        try
        {
            code = std::max(code, act(name));
        }
        catch (const std::runtime_error& failure)
        {
            TellError(failure.what());
            code = found;
        }
    }
    return code;
}

} // namespace lytdlg
