#include "lytdlg/Commands.h"

#include "lytdlg/draw/Dot.h"
#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <filesystem>

namespace lytdlg
{

using commandline::UsageError;

namespace
{

std::string GraphOf(const std::string& kind, const Description& description)
{
    const std::filesystem::path file = description.path;
    const std::string title = file.filename().string();
    if (kind == "rules")
        return RulesGraph(title, description);
    return kind == "scan" ? ScanGraph(title, description)
                          : GroupsGraph(title, description, file.parent_path().string());
}

// What the library cannot read is not part of the graph.
ExitCode TellMistakes(const Description& description)
{
    for (const Mistake& mistake : description.mistakes)
        TellError(description.path + ":" + std::to_string(mistake.place.line) + ": left out: the library refuses it (" +
                  (mistake.number.empty() ? "the line ends too early" : mistake.number) +
                  "); `lytdlg check` says more");
    return description.mistakes.empty() ? good : found;
}

ExitCode Graph(const Request& request)
{
    const std::string file = request.Operand(0, "");
    const std::string kind = request.Text("--of", "rules");
    const std::string target = request.Text("-o", "");
    const std::string extension = ExtensionOf(target);
    if (kind != "rules" && kind != "scan" && kind != "groups")
        throw UsageError("there is no graph of \"" + kind + "\"; use one of: rules, scan, groups");
    if (!target.empty() && extension != ".dot" && extension != ".svg")
        throw UsageError("\"" + target + "\" is no kind of graph; the name ends in .dot or .svg");
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(PathOf(file), ignored))
        throw UsageError("there is no dialog \"" + file + "\"; name a .dlg file with its folder");
    const Description description(file, ReadDescription(file), request.Texts("--define"));
    const std::string graph = GraphOf(kind, description);
    if (extension == ".svg")
        WriteByProgram(target, {"dot", "-Tsvg"}, graph,
                       "an .svg needs Graphviz, which is not installed: apt-get install graphviz, or on Windows "
                       "its setup with the folder on the path; or write a .dot");
    else
        WriteOut(target, graph);
    return TellMistakes(description);
}

} // namespace

Command GraphCommand()
{
    return {
        {"graph",
         "DIALOG",
         1,
         1,
         "draw what depends on what in a description, for Graphviz",
         {{"--of", "WHAT", false, "rules (default), scan (the statements of the input) or groups (what uses which)"},
          {"-o", "FILE", false, "a .dot file, or an .svg file by Graphviz; else the graph is printed"},
          {"--define", "WORD", false, "switch on the lines of a define; may be given again"}}},
        Graph};
}

} // namespace lytdlg
