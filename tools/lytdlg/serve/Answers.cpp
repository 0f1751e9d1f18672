#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/language/LanguageHelp.h"
#include "lytdlg/language/Navigation.h"
#include "lytdlg/serve/Requests.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Uri.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// ---- What texts there are

Json Initialize(Session& session, const Json& params)
{
    constexpr int byRanges = 2;
    session.abilities = params.value("capabilities", Json::object());
    session.state = Session::State::Ready;
    Json capabilities = {{"positionEncoding", "utf-16"},
                         {"textDocumentSync", {{"openClose", true}, {"change", byRanges}, {"save", true}}}};
    for (const Method& method : Methods())
    {
        if (method.capability != nullptr)
            capabilities[method.capability] = method.promised;
    }
    return {{"capabilities", std::move(capabilities)},
            {"serverInfo", {{"name", "lytdlg"}, {"version", commandline::projectVersion}}}};
}

Json Initialized(Session& session, const Json& /*params*/)
{
    constexpr const char* watch = "workspace/didChangeWatchedFiles";
    if (!session.Can("/workspace/didChangeWatchedFiles/dynamicRegistration"))
        return {};
    const Json watchers = Json::array({{{"globPattern", "**/*.{dlg,nls,case,ini}"}}});
    const Json registration = {{"id", "files"}, {"method", watch}, {"registerOptions", {{"watchers", watchers}}}};
    session.send({{"jsonrpc", "2.0"},
                  {"id", "files"},
                  {"method", "client/registerCapability"},
                  {"params", {{"registrations", Json::array({registration})}}}});
    return {};
}

Json ShutDown(Session& session, const Json& /*params*/)
{
    session.state = Session::State::ShutDown;
    session.diagnostics.ForgetWaiting();
    return {};
}

Json Exit(Session& session, const Json& /*params*/)
{
    session.isOver = true;
    return {};
}

Json DidOpen(Session& session, const Json& params)
{
    const Json& document = params.at("textDocument");
    const std::string path = PathIn(params);
    session.workspace.Open(path, document.at("text").get<std::string>());
    session.uris[path] = document.at("uri").get<std::string>();
    session.diagnostics.WillJudge(path);
    return {};
}

Json DidChange(Session& session, const Json& params)
{
    const std::string path = PathIn(params);
    if (session.workspace.Find(path) == nullptr)
        throw std::runtime_error("the text is not open");
    for (const Json& change : params.at("contentChanges"))
    {
        const std::string text = change.at("text").get<std::string>();
        if (change.contains("range"))
            session.workspace.Change(path, change.at("range").get<TextRange>(), text);
        else
            session.workspace.Open(path, text);
    }
    session.diagnostics.WillJudge(path);
    return {};
}

Json DidClose(Session& session, const Json& params)
{
    const std::string path = PathIn(params);
    session.workspace.Close(path);
    session.diagnostics.WillJudge(path);
    return {};
}

Json DidChangeFiles(Session& session, const Json& /*params*/)
{
    session.workspace.Forget();
    session.diagnostics.WillJudgeAll();
    return {};
}

// ---- About a place

TextPosition PositionIn(const Json& params)
{
    return params.at("position").get<TextPosition>();
}

// As references have it: an item of the output that names a control is one.
NamedWord WordIn(const Session& session, const Json& params)
{
    const TextPosition position = PositionIn(params);
    const Description& description = session.DescriptionIn(params);
    const int line = std::clamp(position.line, 0, static_cast<int>(description.text.Lines().size())) + 1;
    for (NamedWord& word : WordsIn(description, line))
    {
        if (word.place.column <= position.character && position.character <= word.place.column + word.place.length)
            return std::move(word);
    }
    return {};
}

Json Completion(Session& session, const Json& params)
{
    const TextPosition position = PositionIn(params);
    const Description& description = session.DescriptionIn(params);
    if (position.line < 0 || position.line >= static_cast<int>(description.text.Lines().size()))
        return Json::array();
    Proposals proposals = ProposalsAt(description, session.workspace.SurroundingsAt(PathIn(params)), position.line + 1,
                                      position.character);
    if (!session.Can("/textDocument/completion/completionItem/snippetSupport"))
        RemoveSnippets(proposals);
    return proposals;
}

Json Hover(Session& session, const Json& params)
{
    const std::string path = PathIn(params);
    const TextPosition position = PositionIn(params);
    const NamedWord word = WordIn(session, params);
    const Section section = session.DescriptionIn(params).text.Line(word.place.line).section;
    std::string text = HelpOn(word, section);
    if (text.empty())
        text = commandline::ToUtf8(ExplanationOf(session.workspace, path, word));
    for (const Finding& finding : session.diagnostics.Of(path))
    {
        const TextRange range = RangeOf(finding.place);
        if (range.begin <= position && position <= range.end)
            text += (text.empty() ? "" : "\n\n---\n\n") + ("```text\n" + Explanation(*finding.rule)) + "```\n";
    }
    if (text.empty())
        return {};
    Json hover = {{"contents", {{"kind", "markdown"}, {"value", text}}}};
    if (word.meaning != Meaning::Nothing)
        hover["range"] = RangeOf(word.place);
    return hover;
}

enum class Places
{
    Declared,
    Used,
    All
};

Json Locations(const Session& session, const Json& params, Places wanted)
{
    Json locations = Json::array();
    for (const TextPlace& found : PlacesOf(session.workspace, PathIn(params), WordIn(session, params)))
    {
        if (wanted == Places::All || found.isDeclared == (wanted == Places::Declared))
            locations.push_back({{"uri", session.UriFor(found.path)}, {"range", RangeOf(found.place)}});
    }
    return locations;
}

Json Definition(Session& session, const Json& params)
{
    return Locations(session, params, Places::Declared);
}

Json References(Session& session, const Json& params)
{
    const bool isAll = params.at("context").at("includeDeclaration").get<bool>();
    return Locations(session, params, isAll ? Places::All : Places::Used);
}

Json Highlights(Session& session, const Json& params)
{
    Json highlights = Json::array();
    const NamedWord word = WordIn(session, params);
    if (word.meaning == Meaning::Nothing)
        return highlights;
    for (const NamedWord& found : WordsLike(session.DescriptionIn(params), word))
        highlights.push_back({{"range", RangeOf(found.place)}});
    return highlights;
}

// ---- Changes

} // namespace

Json WorkspaceEdit(const Session& session, const EditsByPath& edits)
{
    Json changes = Json::object();
    for (const auto& [path, list] : edits)
        changes[session.UriFor(path)] = list;
    return {{"changes", std::move(changes)}};
}

namespace
{

Json PrepareRename(Session& session, const Json& params)
{
    const NamedWord word = WordIn(session, params);
    ExpectRenamable(word);
    return {{"range", RangeOf(word.place)}, {"placeholder", commandline::ToUtf8(word.text)}};
}

Json Rename(Session& session, const Json& params)
{
    const std::string name = commandline::ToAnsi(params.at("newName").get<std::string>());
    return WorkspaceEdit(session, RenamingOf(session.workspace, PathIn(params), WordIn(session, params), name));
}

Json CodeActions(Session& session, const Json& params)
{
    const std::string path = PathIn(params);
    const Json& context = params.at("context");
    Json actions = Json::array();
    for (const Mending& mending :
         MendingsAt(session.workspace, session.diagnostics.Of(path), path, params.at("range").get<TextRange>()))
    {
        actions.push_back({{"title", commandline::ToUtf8(mending.title)},
                           {"kind", "quickfix"},
                           {"edit", WorkspaceEdit(session, mending.edits)},
                           {"isPreferred", mending.isSafe}});
        for (const Json& diagnostic : context.at("diagnostics"))
        {
            if (diagnostic.value("code", Json()) == mending.rule && diagnostic.at("range") == Json(mending.place))
                actions.back()["diagnostics"].push_back(diagnostic);
        }
    }
    const Json only = context.value("only", Json::array());
    const auto isOfAll = [](const Json& kind) { return kind == "source" || kind == "source.fixAll"; };
    const std::vector<TextEdit> edits =
        std::ranges::any_of(only, isOfAll) ? SafeMendingOf(session.workspace, path) : std::vector<TextEdit>();
    if (!edits.empty())
        actions.push_back({{"title", "Mend all that can be mended without a change of what works"},
                           {"kind", "source.fixAll"},
                           {"edit", WorkspaceEdit(session, {{path, edits}})}});
    return actions;
}

// ---- Links and lenses

Json Links(Session& session, const Json& params)
{
    Json links = Json::array();
    for (const Link& link : LinksOf(session.workspace, PathIn(params)))
        links.push_back({{"range", RangeOf(link.place)}, {"target", session.UriFor(link.path)}});
    return links;
}

Json Lenses(Session& session, const Json& params)
{
    const Description& description = session.DescriptionIn(params);
    if (!description.hasDialogHeader)
        return Json::array();
    const std::string uri = session.UriFor(PathIn(params));
    const TextPosition begin = {std::max(0, description.dialogHeader.line - 1), 0};
    const Json run = {{"title", "run"}, {"command", "lytdlg.run"}, {"arguments", {uri}}};
    Json lenses = Json::array({{{"range", TextRange{begin, begin}}, {"command", run}}});
    if (!CasesOf(session.workspace, PathIn(params)).empty())
        lenses.push_back({{"range", TextRange{begin, begin}}, {"data", uri}});
    return lenses;
}

// The cases are carried out when the editor shows the line.
Json ResolvedLens(Session& session, const Json& params)
{
    Json lens = params;
    const std::string uri = params.at("data").get<std::string>();
    lens["command"] = {{"title", VerdictOfCases(session.workspace, PlainPath(PathOfUri(uri)))},
                       {"command", "lytdlg.test"},
                       {"arguments", {uri}}};
    return lens;
}

// Reports how far it is, if the client asks for that.
Json ExecuteCommand(Session& session, const Json& params)
{
    if (params.at("command") != checkFolderCommand)
        throw std::runtime_error(std::string("there is no such command; write ") + checkFolderCommand);
    const std::string folder = PlainPath(PathOfUri(params.at("arguments").at(0).get<std::string>()));
    const std::vector<std::filesystem::path> files = FilesBelow(PathOf(folder), {".dlg"});
    const auto report = [&](const Json& value)
    {
        if (params.contains("workDoneToken"))
            session.Notify("$/progress", {{"token", params["workDoneToken"]}, {"value", value}});
    };
    report({{"kind", "begin"}, {"title", "check"}, {"percentage", 0}});
    for (size_t index = 0; index < files.size(); ++index)
    {
        const std::string path = PlainPath(files[index].string());
        session.Publish(session.diagnostics.Include(path));
        report({{"kind", "report"}, {"message", path}, {"percentage", (index + 1) * 100 / files.size()}});
    }
    report({{"kind", "end"}});
    return {};
}

} // namespace

const std::vector<Method>& Methods()
{
    static const std::vector<Method> methods = {
        {"initialize", Initialize},
        {"initialized", Initialized},
        {"shutdown", ShutDown},
        {"exit", Exit},
        {"textDocument/didOpen", DidOpen},
        {"textDocument/didChange", DidChange},
        {"textDocument/didClose", DidClose},
        {"textDocument/didSave", DidChangeFiles},
        {"workspace/didChangeWatchedFiles", DidChangeFiles},
        {"textDocument/codeAction",
         CodeActions,
         "codeActionProvider",
         {{"codeActionKinds", {"quickfix", "source.fixAll"}}}},
        {"textDocument/formatting",
         [](Session& session, const Json& params) { return Json(FormattingOf(session.workspace, PathIn(params))); },
         "documentFormattingProvider"},
        {"textDocument/documentSymbol",
         [](Session& session, const Json& params) { return Json(OutlineOf(session.DescriptionIn(params))); },
         "documentSymbolProvider"},
        {"textDocument/foldingRange",
         [](Session& session, const Json& params) { return Json(FoldsOf(session.DescriptionIn(params))); },
         "foldingRangeProvider"},
        {"textDocument/completion",
         Completion,
         "completionProvider",
         {{"triggerCharacters", {"$", "/", "=", ":", "(", ",", ".", "\""}}}},
        {"textDocument/hover", Hover, "hoverProvider"},
        {"textDocument/definition", Definition, "definitionProvider"},
        {"textDocument/references", References, "referencesProvider"},
        {"textDocument/documentHighlight", Highlights, "documentHighlightProvider"},
        {"textDocument/prepareRename", PrepareRename},
        {"textDocument/rename", Rename, "renameProvider", {{"prepareProvider", true}}},
        {"textDocument/documentLink", Links, "documentLinkProvider", Json::object()},
        {"textDocument/semanticTokens/full",
         [](Session& session, const Json& params) { return TokensOf(AllWordsIn(session.DescriptionIn(params))); },
         "semanticTokensProvider",
         {{"legend", TokenLegend()}, {"full", true}}},
        {"textDocument/inlayHint",
         [](Session& session, const Json& params)
         { return Json(HintsOf(session.workspace, PathIn(params), params.at("range").get<TextRange>())); },
         "inlayHintProvider"},
        {"textDocument/codeLens", Lenses, "codeLensProvider", {{"resolveProvider", true}}},
        {"codeLens/resolve", ResolvedLens},
        {"lytdlg/draw", Draw},
        {"lytdlg/play", PlayDialog},
        {"lytdlg/why", ExplainControl},
        {"lytdlg/way", TellWay},
        {"lytdlg/cases", RunCases},
        {"lytdlg/newCase", AddCase},
        {"lytdlg/place", PlaceControls},
        {"lytdlg/newControl", AddControl},
        {"lytdlg/order", OrderControls},
        {"lytdlg/removeControls", RemoveControls},
        {"workspace/executeCommand",
         ExecuteCommand,
         "executeCommandProvider",
         {{"commands", {checkFolderCommand}}, {"workDoneProgress", true}}},
    };
    return methods;
}

} // namespace lytdlg
