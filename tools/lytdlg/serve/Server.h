// The command that judges every description of a folder, whose address is its argument.
inline constexpr const char* checkFolderCommand = "lytdlg.checkFolder";

// The language server: takes messages of the protocol and sends others. It writes no file, and no message ends it but "exit".
#pragma once

#include "lytdlg/language/Diagnostics.h"
#include "lytdlg/language/Navigation.h"
#include "lytdlg/serve/ProtocolJson.h"

#include <deque>
#include <functional>

namespace lytdlg
{

class Server
{
public:
    using Send = std::function<void(const Json& message)>;

    Server(Send send, std::vector<std::string> partners, std::vector<std::string> defines);

    // Takes a message as it came. It is answered by Work, unless it is cancelled before.
    void Receive(const std::string& text);
    bool HasWork() const { return !m_waiting.empty() || !m_unjudged.empty(); }
    // Answers the first message that waits. Without one, judges a text that has changed.
    void Work();
    bool IsOver() const { return m_isOver; }
    // Whether the end was announced, as it should be.
    bool WasShutDown() const { return m_state == State::ShutDown; }

private:
    enum class State
    {
        New,
        Ready,
        ShutDown
    };
    struct Method;
    static const std::vector<Method>& Methods();

    void Cancel(const Json& message);
    void Answer(const Json& message);
    Json ResultOf(const std::string& method, const Json& params);
    void Reply(const Json& id, const Json& result);
    void ReplyError(const Json& id, int code, const std::string& message);
    void Notify(const char* method, Json params);

    Json Initialize(const Json& params);
    Json Initialized(const Json& params);
    Json ShutDown(const Json& params);
    Json Exit(const Json& params);
    Json DidOpen(const Json& params);
    Json DidChange(const Json& params);
    Json DidClose(const Json& params);
    Json DidSave(const Json& params);
    Json DidChangeFiles(const Json& params);
    Json CodeActions(const Json& params);
    Json Formatting(const Json& params);
    Json DocumentSymbols(const Json& params);
    Json Folds(const Json& params);
    Json Completion(const Json& params);
    Json Hover(const Json& params);
    Json Definition(const Json& params);
    Json References(const Json& params);
    Json Highlights(const Json& params);
    Json PrepareRename(const Json& params);
    Json Rename(const Json& params);
    Json Links(const Json& params);
    Json Tokens(const Json& params);
    Json Hints(const Json& params);
    Json Lenses(const Json& params);
    Json ResolvedLens(const Json& params);
    Json Draw(const Json& params);
    Json ExecuteCommand(const Json& params);

    // All open texts that the change of one concerns, itself first.
    void WillJudge(const std::string& path);
    void WillJudgeAll();
    void JudgeText(const std::string& path);
    void Publish(const std::string& path, const std::vector<Finding>& findings);
    static std::string PathIn(const Json& params);
    std::string UriFor(const std::string& path) const;
    Json WorkspaceEdit(const EditsByPath& edits) const;
    // Of the description that a request is about, or one without lines.
    const Description& DescriptionIn(const Json& params) const;
    NamedWord WordIn(const Json& params) const;
    Json LocationOf(const std::string& path, const ClytSpan& place) const;

    const Send m_send;
    const std::vector<std::string> m_partners;
    const std::vector<std::string> m_defines;
    State m_state = State::New;
    bool m_isOver = false;
    // What the client can do.
    bool m_canWatchFiles = false;
    bool m_takesSnippets = false;
    std::deque<Json> m_waiting;
    std::deque<std::string> m_unjudged; // paths
    std::unique_ptr<Workspace> m_workspace;
    std::map<std::string, std::string> m_uris; // of the open texts, as the client has them
    Diagnostics m_diagnostics;
};

} // namespace lytdlg
