#include "lytdlg/draw/GraphCommand.h"

#include "commandline/RunProgram.h"
#include "lytdlg/draw/Graphs.h"
#include "lytdlg/draw/Output.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <cstdio>
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

// What the library cannot read is no part of the graph.
ExitCode TellMistakes(const Description& description)
{
    for (const Mistake& mistake : description.mistakes)
        std::fprintf(stderr, "lytdlg: %s:%d: left out: the library refuses it (%s); `lytdlg check` tells more\n",
                     description.path.c_str(), mistake.place.line,
                     mistake.number.empty() ? "the line ends too early" : mistake.number.c_str());
    return description.mistakes.empty() ? good : found;
}

void WriteSvg(const std::string& target, const std::string& graph)
{
    const TemporaryFile source(graph);
    const int code = commandline::RunProgram({"dot", "-Tsvg", "-o", target, source.Name().string()});
    if (code < 0)
        throw std::runtime_error(
            "an .svg needs Graphviz, which is not installed: apt-get install graphviz, or on Windows "
            "its setup with the folder on the path; or write a .dot");
    if (code > 0)
        throw std::runtime_error("dot could not write \"" + target + "\"");
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
    const std::optional<std::string> bytes = ReadWholeFile(PathOf(file));
    if (!bytes)
        throw UsageError("there is no dialog \"" + file + "\"; name a .dlg file with its folder");
    const Description description(file, *bytes, request.Texts("--define"));
    const std::string graph = GraphOf(kind, description);
    if (extension == ".svg")
        WriteSvg(target, graph);
    else
        WriteOut(target, graph);
    return TellMistakes(description);
}

} // namespace

Command GraphCommand()
{
    return {{"graph",
             "DIALOG",
             1,
             1,
             "draw what depends on what in a description, for Graphviz",
             {{"--of", "WHAT", false, "rules (else taken), scan (the states of the input) or groups (who uses which)"},
              {"-o", "FILE", false, "a .dot file, or an .svg file by Graphviz; else the graph is printed"},
              {"--define", "WORD", false, "switch on the lines of a define; may be given again"}}},
            Graph};
}

} // namespace lytdlg
