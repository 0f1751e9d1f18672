// An editor with the language server: a message as it comes, and every request about a place of a description.
#include "commandline/Text.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/Samples.h"
#include "lytdlg/serve/Server.h"

#include <cstdlib>
#include <sstream>

namespace
{
namespace lsp_fuzzer
{

using lytdlg::Json;

constexpr const char* uri = "file:///nowhere/lsp.dlg";

// What carries out cases needs files.
constexpr const char* methods[] = {
    "textDocument/completion",     "textDocument/hover",        "textDocument/definition",
    "textDocument/references",     "textDocument/rename",       "textDocument/documentHighlight",
    "textDocument/prepareRename",  "textDocument/codeAction",   "textDocument/formatting",
    "textDocument/documentSymbol", "textDocument/foldingRange", "textDocument/documentLink",
    "textDocument/inlayHint",      "textDocument/codeLens",     "textDocument/semanticTokens/full",
};

// The fuzzer of check tries dialogs to the end.
void WorkOut(lytdlg::Server& server)
{
    constexpr int mostTrials = 3;
    while (server.IsUrgent())
        server.Work();
    int trials = 0;
    if (server.HasWork())
        server.Work([&] { return ++trials > mostTrials; });
}

void Run(const std::string& input)
{
    std::istringstream lines(input);
    std::string message;
    std::string place;
    std::getline(lines, message);
    std::getline(lines, place);
    const std::string description(std::istreambuf_iterator<char>(lines), {});
    int line = 0;
    int character = 0;
    std::string name;
    std::istringstream(place) >> line >> character >> name;

    size_t answers = 0;
    lytdlg::Server server(
        [&](const Json& sent)
        { answers += sent.contains("id") && (sent.contains("result") || sent.contains("error")) ? 1 : 0; },
        {}, {});
    server.Receive(R"({"id":0,"method":"initialize","params":{}})");
    const Json document = {{"uri", uri}, {"text", commandline::ToUtf8(description)}};
    server.Receive(Json{{"method", "textDocument/didOpen"}, {"params", {{"textDocument", document}}}}.dump());
    WorkOut(server);
    const Json position = {{"line", line}, {"character", character}};
    const Json params = {{"textDocument", {{"uri", uri}}},
                         {"position", position},
                         {"range", {{"start", position}, {"end", position}}},
                         {"newName", commandline::ToUtf8(name)},
                         {"context", {{"includeDeclaration", true}, {"diagnostics", Json::array()}}}};
    answers = 0;
    for (const char* method : methods)
        server.Receive(Json{{"id", 1}, {"method", method}, {"params", params}}.dump());
    WorkOut(server);
    if (answers != std::size(methods))
        std::abort();
    if (message.find("resolve") == std::string::npos)
        server.Receive(message);
    WorkOut(server);
}

std::vector<std::string> Seeds()
{
    return SampleDescriptionsAfter(
        "{\"method\":\"textDocument/didChange\",\"params\":{\"textDocument\":{\"uri\":\"file:///nowhere/lsp.dlg\"},"
        "\"contentChanges\":[{\"range\":{\"start\":{\"line\":1,\"character\":2},\"end\":{\"line\":3,\"character\":4}},"
        "\"text\":\"x\"}]}}\n14 20 Other\n");
}

} // namespace lsp_fuzzer
} // namespace

const Fuzzer lspFuzzer = {"lsp", "a message; line, character and a name; a description, all for the language server",
                          lsp_fuzzer::Run, lsp_fuzzer::Seeds};
