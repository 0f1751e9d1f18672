#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/language/Hover.h"
#include "lytdlg/language/Places.h"
#include "lytdlg/language/Renaming.h"
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

// ---- About a text, and a place of it

template <auto ASK>
Json OfText(Session& session, const Json& params)
{
    return ASK(session.workspace, PathIn(params));
}

TextPosition PositionIn(const Json& params)
{
    return params.at("position").get<TextPosition>();
}

NamedWord WordIn(const Session& session, const Json& params)
{
    return NameAt(session.workspace, PathIn(params), PositionIn(params));
}

Json Completion(Session& session, const Json& params)
{
    Proposals proposals = ProposalsAt(session.workspace, PathIn(params), PositionIn(params));
    if (!session.Can("/textDocument/completion/completionItem/snippetSupport"))
        RemoveSnippets(proposals);
    return proposals;
}

Json Hover(Session& session, const Json& params)
{
    const auto [word, text] = HoverAt(session.workspace, session.diagnostics, PathIn(params), PositionIn(params));
    if (text.empty())
        return {};
    Json hover = {{"contents", {{"kind", "markdown"}, {"value", text}}}};
    if (word.meaning != Meaning::Nothing)
        hover["range"] = RangeOf(word.place);
    return hover;
}

// With a choice, of the places where the name is given, or only of the others.
Json Locations(const Session& session, const Json& params, std::optional<bool> isDeclared)
{
    Json locations = Json::array();
    for (const TextPlace& found : PlacesOf(session.workspace, WordIn(session, params)))
    {
        if (found.isDeclared == isDeclared.value_or(found.isDeclared))
            locations.push_back({{"uri", session.UriFor(found.path)}, {"range", RangeOf(found.place)}});
    }
    return locations;
}

Json Definition(Session& session, const Json& params)
{
    return Locations(session, params, true);
}

Json References(Session& session, const Json& params)
{
    const bool isAll = params.at("context").at("includeDeclaration").get<bool>();
    return Locations(session, params, isAll ? std::nullopt : std::optional(false));
}

Json Highlights(Session& session, const Json& params)
{
    Json highlights = Json::array();
    const NamedWord word = WordIn(session, params);
    if (word.meaning == Meaning::Nothing)
        return highlights;
    for (const NamedWord& found : WordsLike(session.workspace, PathIn(params), word))
        highlights.push_back({{"range", RangeOf(found.place)}});
    return highlights;
}

// ---- Changes

// With versions unknown, as the changes of a text are when a file gets another name after them.
Json WorkspaceEdit(const Session& session, const Renaming& renaming)
{
    if (renaming.file.empty())
        return WorkspaceEdit(session, renaming.edits);
    const Json known =
        session.abilities.value(Json::json_pointer("/workspace/workspaceEdit/resourceOperations"), Json());
    if (std::ranges::find(known, "rename") == known.end())
        throw RenameRefused("this editor cannot rename the file of a dialog");
    Json changes = Json::array();
    for (const auto& [path, list] : renaming.edits)
        changes.push_back({{"textDocument", {{"uri", session.UriFor(path)}, {"version", nullptr}}}, {"edits", list}});
    changes.push_back(
        {{"kind", "rename"}, {"oldUri", session.UriFor(renaming.file)}, {"newUri", UriOf(renaming.newFile)}});
    return {{"documentChanges", std::move(changes)}};
}

Json PrepareRename(Session& session, const Json& params)
{
    const NamedWord word = WordIn(session, params);
    ExpectRenamable(word);
    return {{"range", RangeOf(word.place)}, {"placeholder", commandline::ToUtf8(word.text)}};
}

Json Rename(Session& session, const Json& params)
{
    const std::string name = commandline::ToAnsi(params.at("newName").get<std::string>());
    return WorkspaceEdit(session, RenamingOf(session.workspace, WordIn(session, params), name));
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
    const std::string path = PathIn(params);
    const Description& description = session.DescriptionIn(params);
    if (!description.hasDialogHeader)
        return Json::array();
    const std::string uri = session.UriFor(path);
    const TextRange place = RangeOf({description.dialogHeader.line, 0, 0});
    const Json run = {{"title", "run"}, {"command", "lytdlg.run"}, {"arguments", {uri}}};
    Json lenses = Json::array({{{"range", place}, {"command", run}}});
    if (!CasesOf(session.workspace, path).empty())
        lenses.push_back({{"range", place}, {"data", uri}});
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
        {"textDocument/formatting", OfText<FormattingOf>, "documentFormattingProvider"},
        {"textDocument/documentSymbol", OfText<OutlineOf>, "documentSymbolProvider"},
        {"textDocument/foldingRange", OfText<FoldsOf>, "foldingRangeProvider"},
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
         [](Session& session, const Json& params) { return TokensOf(WordsOf(session.workspace, PathIn(params))); },
         "semanticTokensProvider",
         {{"legend", TokenLegend()}, {"full", true}}},
        {"textDocument/inlayHint",
         [](Session& session, const Json& params)
         { return Json(HintsOf(session.workspace, PathIn(params), params.at("range").get<TextRange>())); },
         "inlayHintProvider"},
        {"textDocument/codeLens", Lenses, "codeLensProvider", {{"resolveProvider", true}}},
        {"codeLens/resolve", ResolvedLens},
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
