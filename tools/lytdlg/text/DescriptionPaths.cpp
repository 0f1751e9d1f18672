#include "lytdlg/text/DescriptionPaths.h"

#include "commandline/CommandLine.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

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
    if (!fs::is_directory(PathOf(operand), ignored))
        return {operand};
    std::vector<std::string> names;
    for (const fs::path& file : FilesIn(PathOf(operand), ".dlg"))
        names.push_back(file.string());
    if (names.empty())
        throw commandline::UsageError("the folder " + operand +
                                      " holds no description (*.dlg); name the one that does");
    return names;
}

} // namespace lytdlg
