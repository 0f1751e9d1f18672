#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/text/NewDialog.h"
#include "lytdlg/text/Paths.h"

namespace lytdlg
{

namespace
{

ExitCode New(const Request& request)
{
    const std::string name = request.Operand(0, "");
    const std::string fault = FaultOfName(name);
    if (!fault.empty())
        throw commandline::UsageError("\"" + name + "\" is no name for a dialog; " + fault);
    const std::string folder = request.Text("-o", ".");
    std::error_code ignored;
    if (!std::filesystem::is_directory(PathOf(folder), ignored))
        throw commandline::UsageError("there is no folder " + folder + "; name the folder of the dialogs");
    for (const MadeFile& file : MakeDialog(PathOf(folder), name))
        commandline::PrintLine(file.name.string() + (file.isNew ? ": made" : ": texts added"));
    return good;
}

} // namespace

Command NewCommand()
{
    return {{"new",
             "NAME",
             1,
             1,
             "begin a dialog: a description, its texts in every language and a test case",
             {{"-o", "FOLDER", false, "the folder of the dialogs (the current one)"}}},
            New};
}

} // namespace lytdlg
