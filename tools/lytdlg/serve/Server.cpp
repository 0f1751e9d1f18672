#include "lytdlg/serve/Server.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/text/Uri.h"

#include <afx.h>

#include <algorithm>

namespace lytdlg
{

namespace
{

// The numbers of the protocol.
enum ProtocolError
{
    parseError = -32700,
    invalidRequest = -32600,
    methodNotFound = -32601,
    invalidParams = -32602,
    internalError = -32603,
    serverNotInitialized = -32002,
    requestCancelled = -32800,
    requestFailed = -32803
};

struct Refused
{
    int code;
    std::string message;
};

// A request has an identity, and is answered with it; a notification has none.
bool IsIdentity(const Json& id)
{
    return id.is_string() || id.is_number_integer();
}

bool IsRequest(const Json& message)
{
    return message.contains("id");
}

// Of a field of a message; an empty text for anything else.
std::string TextIn(const Json& message, const char* field)
{
    const auto found = message.find(field);
    return found != message.end() && found->is_string() ? found->get<std::string>() : "";
}

// Whether the client tells of an ability.
bool Can(const Json& params, const char* ability)
{
    const Json none = Json::object();
    const auto capabilities = params.find("capabilities");
    const Json& all = capabilities != params.end() && capabilities->is_object() ? *capabilities : none;
    const Json::json_pointer place(ability);
    return all.contains(place) && all.at(place) == true;
}

std::string WordsOfFailure(CException* failure)
{
    CString message;
    failure->GetErrorMessage(message.GetBuffer(1024), 1024);
    message.ReleaseBuffer();
    failure->Delete();
    return message.GetString();
}

} // namespace

struct Server::Method
{
    const char* name;
    Json (Server::*answer)(const Json& params);
};

const std::vector<Server::Method>& Server::Methods()
{
    static const std::vector<Method> methods = {
        {"initialize", &Server::Initialize},
        {"initialized", &Server::Initialized},
        {"shutdown", &Server::ShutDown},
        {"exit", &Server::Exit},
        {"textDocument/didOpen", &Server::DidOpen},
        {"textDocument/didChange", &Server::DidChange},
        {"textDocument/didClose", &Server::DidClose},
        {"textDocument/didSave", &Server::DidSave},
        {"workspace/didChangeWatchedFiles", &Server::DidChangeFiles},
        {"textDocument/codeAction", &Server::CodeActions},
        {"textDocument/formatting", &Server::Formatting},
        {"textDocument/documentSymbol", &Server::DocumentSymbols},
        {"textDocument/foldingRange", &Server::Folds},
        {"textDocument/completion", &Server::Completion},
        {"textDocument/hover", &Server::Hover},
        {"textDocument/definition", &Server::Definition},
        {"textDocument/references", &Server::References},
        {"textDocument/documentHighlight", &Server::Highlights},
        {"textDocument/prepareRename", &Server::PrepareRename},
        {"textDocument/rename", &Server::Rename},
        {"textDocument/documentLink", &Server::Links},
        {"textDocument/semanticTokens/full", &Server::Tokens},
        {"textDocument/inlayHint", &Server::Hints},
        {"textDocument/codeLens", &Server::Lenses},
        {"codeLens/resolve", &Server::ResolvedLens},
        {"lytdlg/draw", &Server::Draw},
        {"workspace/executeCommand", &Server::ExecuteCommand},
    };
    return methods;
}

Server::Server(Send send, std::vector<std::string> partners, std::vector<std::string> defines)
    : m_send(std::move(send)), m_partners(std::move(partners)), m_defines(std::move(defines))
{
}

void Server::Receive(const std::string& text)
{
    Json message = Json::parse(text, nullptr, false);
    if (message.is_discarded())
        ReplyError(nullptr, parseError, "the message is no JSON");
    else if (!message.is_object() || (IsRequest(message) && !IsIdentity(message["id"])))
        ReplyError(nullptr, invalidRequest, "the message is no request");
    else if (TextIn(message, "method") == "$/cancelRequest")
        Cancel(message);
    else if (!TextIn(message, "method").empty())
        m_waiting.push_back(std::move(message));
    else if (IsRequest(message) && !message.contains("result") && !message.contains("error"))
        ReplyError(message["id"], invalidRequest, "the request names no method");
}

// A request that is being answered is no longer waiting, and its answer goes out.
void Server::Cancel(const Json& message)
{
    const auto params = message.find("params");
    if (params == message.end() || !params->is_object() || !params->contains("id"))
        return;
    const Json& id = (*params)["id"];
    const auto waiting = std::ranges::find_if(m_waiting, [&](const Json& request)
                                              { return IsRequest(request) && IsIdentity(id) && request["id"] == id; });
    if (waiting == m_waiting.end())
        return;
    ReplyError(id, requestCancelled, "the request was cancelled");
    m_waiting.erase(waiting);
}

void Server::Work()
{
    if (m_waiting.empty())
    {
        const std::string path = std::move(m_unjudged.front());
        m_unjudged.pop_front();
        JudgeText(path);
        return;
    }
    const Json message = std::move(m_waiting.front());
    m_waiting.pop_front();
    Answer(message);
}

void Server::Answer(const Json& message)
{
    const Json none = Json::object();
    const auto params = message.find("params");
    const Json id = IsRequest(message) ? message["id"] : Json();
    const auto refuse = [&](int code, const std::string& reason)
    {
        if (!id.is_null())
            ReplyError(id, code, reason);
    };
    try
    {
        const Json result = ResultOf(TextIn(message, "method"), params != message.end() ? *params : none);
        if (!id.is_null())
            Reply(id, result);
    }
    catch (const Refused& refused)
    {
        refuse(refused.code, refused.message);
    }
    catch (const Json::exception& failure)
    {
        refuse(invalidParams, failure.what());
    }
    catch (const std::runtime_error& failure)
    {
        refuse(requestFailed, failure.what());
    }
    catch (const std::exception& failure)
    {
        refuse(internalError, failure.what());
    }
    catch (CException* failure)
    {
        refuse(internalError, WordsOfFailure(failure));
    }
}

Json Server::ResultOf(const std::string& method, const Json& params)
{
    const auto known = std::ranges::find(Methods(), method, &Method::name);
    if (m_state == State::New && method != "initialize" && method != "exit")
        throw Refused{serverNotInitialized, "the first request must be \"initialize\""};
    if (m_state == State::ShutDown && method != "exit")
        throw Refused{invalidRequest, "after \"shutdown\" comes only \"exit\""};
    if (known == Methods().end())
        throw Refused{methodNotFound, "there is no method \"" + method + "\""};
    return (this->*known->answer)(params);
}

void Server::Reply(const Json& id, const Json& result)
{
    m_send({{"jsonrpc", "2.0"}, {"id", id}, {"result", result}});
}

void Server::ReplyError(const Json& id, int code, const std::string& message)
{
    m_send({{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", code}, {"message", message}}}});
}

void Server::Notify(const char* method, Json params)
{
    m_send({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}});
}

Json Server::Initialize(const Json& params)
{
    if (m_state != State::New)
        throw Refused{invalidRequest, "\"initialize\" comes once"};
    m_canWatchFiles = Can(params, "/workspace/didChangeWatchedFiles/dynamicRegistration");
    m_takesSnippets = Can(params, "/textDocument/completion/completionItem/snippetSupport");
    m_workspace = std::make_unique<Workspace>(m_partners, m_defines);
    m_state = State::Ready;
    constexpr int byRanges = 2;
    const Json sync = {{"openClose", true}, {"change", byRanges}, {"save", true}};
    const Json actions = {{"codeActionKinds", {"quickfix", "source.fixAll"}}};
    return {{"capabilities",
             {{"positionEncoding", "utf-16"},
              {"textDocumentSync", sync},
              {"codeActionProvider", actions},
              {"documentFormattingProvider", true},
              {"documentSymbolProvider", true},
              {"foldingRangeProvider", true},
              {"completionProvider", {{"triggerCharacters", {"$", "/", "=", ":", "(", ",", ".", "\""}}}},
              {"hoverProvider", true},
              {"definitionProvider", true},
              {"referencesProvider", true},
              {"documentHighlightProvider", true},
              {"renameProvider", {{"prepareProvider", true}}},
              {"documentLinkProvider", Json::object()},
              {"semanticTokensProvider", {{"legend", TokenLegend()}, {"full", true}}},
              {"inlayHintProvider", true},
              {"codeLensProvider", {{"resolveProvider", true}}},
              {"executeCommandProvider", {{"commands", {checkFolderCommand}}, {"workDoneProgress", true}}}}},
            {"serverInfo", {{"name", "lytdlg"}, {"version", commandline::projectVersion}}}};
}

Json Server::Initialized(const Json& /*params*/)
{
    if (!m_canWatchFiles)
        return {};
    const Json watchers = Json::array({{{"globPattern", "**/*.{dlg,nls,case,ini}"}}});
    const Json registration = {
        {"id", "files"}, {"method", "workspace/didChangeWatchedFiles"}, {"registerOptions", {{"watchers", watchers}}}};
    m_send({{"jsonrpc", "2.0"},
            {"id", "files"},
            {"method", "client/registerCapability"},
            {"params", {{"registrations", Json::array({registration})}}}});
    return {};
}

Json Server::ShutDown(const Json& /*params*/)
{
    m_state = State::ShutDown;
    m_unjudged.clear();
    return {};
}

Json Server::Exit(const Json& /*params*/)
{
    m_isOver = true;
    return {};
}

Json Server::DidOpen(const Json& params)
{
    const Json& document = params.at("textDocument");
    const std::string path = PathIn(params);
    m_workspace->Open(path, document.at("text").get<std::string>());
    m_uris[path] = document.at("uri").get<std::string>();
    WillJudge(path);
    return {};
}

Json Server::DidChange(const Json& params)
{
    const std::string path = PathIn(params);
    if (m_workspace->Find(path) == nullptr)
        throw Refused{invalidParams, "the text is not open"};
    for (const Json& change : params.at("contentChanges"))
    {
        const std::string text = change.at("text").get<std::string>();
        if (change.contains("range"))
            m_workspace->Change(path, RangeFrom(change.at("range")), text);
        else
            m_workspace->Open(path, text);
    }
    WillJudge(path);
    return {};
}

Json Server::DidClose(const Json& params)
{
    const std::string path = PathIn(params);
    m_workspace->Close(path);
    WillJudge(path);
    return {};
}

Json Server::DidSave(const Json& /*params*/)
{
    m_workspace->Forget();
    WillJudgeAll();
    return {};
}

Json Server::DidChangeFiles(const Json& /*params*/)
{
    m_workspace->Forget();
    WillJudgeAll();
    return {};
}

void Server::WillJudge(const std::string& path)
{
    std::erase(m_unjudged, path);
    m_unjudged.push_front(path);
    for (const std::string& other : m_workspace->OpenPaths())
    {
        const bool isNeighbour = Workspace::DialogFolderOf(other) == Workspace::DialogFolderOf(path);
        if (isNeighbour && std::ranges::find(m_unjudged, other) == m_unjudged.end())
            m_unjudged.push_back(other);
    }
}

void Server::WillJudgeAll()
{
    const std::vector<std::string> paths = m_workspace->OpenPaths();
    m_unjudged.assign(paths.begin(), paths.end());
    std::ranges::copy_if(m_diagnostics.Included(), std::back_inserter(m_unjudged),
                         [&](const std::string& path) { return m_workspace->Find(path) == nullptr; });
}

void Server::JudgeText(const std::string& path)
{
    for (const std::string& concerned : m_diagnostics.Judge(*m_workspace, path))
        Publish(concerned, m_diagnostics.Of(concerned));
    if (m_workspace->Find(path) == nullptr)
        m_uris.erase(path);
}

void Server::Publish(const std::string& path, const std::vector<Finding>& findings)
{
    const std::string uri = UriFor(path);
    Json diagnostics = Json::array();
    for (const Finding& finding : findings)
        diagnostics.push_back(JsonOf(finding, uri));
    Notify("textDocument/publishDiagnostics", {{"uri", uri}, {"diagnostics", std::move(diagnostics)}});
}

std::string Server::PathIn(const Json& params)
{
    return PlainPath(PathOfUri(params.at("textDocument").at("uri").get<std::string>()));
}

std::string Server::UriFor(const std::string& path) const
{
    const auto open = m_uris.find(path);
    return open != m_uris.end() ? open->second : UriOf(path);
}

Json Server::WorkspaceEdit(const EditsByPath& edits) const
{
    Json changes = Json::object();
    for (const auto& [path, list] : edits)
        changes[UriFor(path)] = JsonOf(list);
    return {{"changes", std::move(changes)}};
}

Json Server::CodeActions(const Json& params)
{
    const std::string path = PathIn(params);
    Json actions = Json::array();
    for (const Mending& mending : MendingsAt(*m_workspace, m_diagnostics.Of(path), path, RangeFrom(params.at("range"))))
    {
        Json action = {{"title", commandline::ToUtf8(mending.title)},
                       {"kind", "quickfix"},
                       {"edit", WorkspaceEdit(mending.edits)},
                       {"isPreferred", mending.isSafe}};
        for (const Json& diagnostic : params.at("context").at("diagnostics"))
        {
            if (diagnostic.value("code", Json()) == mending.rule && RangeFrom(diagnostic.at("range")) == mending.place)
                action["diagnostics"].push_back(diagnostic);
        }
        actions.push_back(std::move(action));
    }
    const Json only = params.at("context").value("only", Json::array());
    const bool isForAll =
        std::ranges::any_of(only, [](const Json& kind) { return kind == "source" || kind == "source.fixAll"; });
    if (!isForAll || m_workspace->Find(path) == nullptr)
        return actions;
    const std::vector<TextEdit> edits = SafeMendingOf(*m_workspace, path);
    if (!edits.empty())
        actions.push_back({{"title", "Mend all that can be mended without a change of what works"},
                           {"kind", "source.fixAll"},
                           {"edit", WorkspaceEdit({{path, edits}})}});
    return actions;
}

Json Server::Formatting(const Json& params)
{
    return JsonOf(FormattingOf(*m_workspace, PathIn(params)));
}

Json Server::DocumentSymbols(const Json& params)
{
    Json symbols = Json::array();
    for (const Symbol& symbol : OutlineOf(m_workspace->DescriptionAt(PathIn(params))))
        symbols.push_back(JsonOf(symbol));
    return symbols;
}

Json Server::Folds(const Json& params)
{
    Json folds = Json::array();
    for (const Fold& fold : FoldsOf(m_workspace->DescriptionAt(PathIn(params))))
        folds.push_back(JsonOf(fold));
    return folds;
}

} // namespace lytdlg
