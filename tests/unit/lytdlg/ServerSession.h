// An editor at work with the language server: it sends messages, and takes what comes back.
#pragma once

#include "commandline/Text.h"
#include "lytdlg/serve/Server.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Uri.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

class ServerSession
{
public:
    using Json = lytdlg::Json;

    explicit ServerSession(const Json& abilities = Json::object()) { Ask("initialize", {{"capabilities", abilities}}); }

    // The answer, whole.
    Json Ask(const char* method, const Json& params)
    {
        ++m_asked;
        Send({{"jsonrpc", "2.0"}, {"id", m_asked}, {"method", method}, {"params", params}});
        return sent.empty() ? Json() : sent.back();
    }
    Json ResultOf(const char* method, const Json& params) { return Ask(method, params)["result"]; }
    void Tell(const char* method, const Json& params)
    {
        Send({{"jsonrpc", "2.0"}, {"method", method}, {"params", params}});
        WorkOut();
    }
    // Takes in a message as it is; what it leads to is in `sent`.
    void Receive(const std::string& text)
    {
        sent.clear();
        server.Receive(text);
        while (server.HasWork())
            server.Work();
    }

    void Open(const std::string& path, const std::string& bytes)
    {
        Tell("textDocument/didOpen", {{"textDocument",
                                       {{"uri", lytdlg::UriOf(path)},
                                        {"languageId", "lytdlg"},
                                        {"version", 1},
                                        {"text", commandline::ToUtf8(bytes)}}}});
    }
    // The findings that were published last, by address.
    const std::map<std::string, Json>& AllFindings() const { return m_findings; }
    const Json& FindingsIn(const std::string& path) { return m_findings[lytdlg::UriOf(path)]; }

    static Json Document(const std::string& path) { return {{"textDocument", {{"uri", lytdlg::UriOf(path)}}}}; }
    static Json Range(int line, int character, int endLine, int endCharacter)
    {
        return {{"start", {{"line", line}, {"character", character}}},
                {"end", {{"line", endLine}, {"character", endCharacter}}}};
    }

    std::vector<Json> sent; // since the last message to the server

    lytdlg::Server server{[this](const Json& message) { Take(message); }, {}, {}};

private:
    void Send(const Json& message)
    {
        sent.clear();
        server.Receive(message.dump());
        server.Work();
    }
    void WorkOut()
    {
        while (server.HasWork())
            server.Work();
    }
    void Take(const Json& message)
    {
        sent.push_back(message);
        if (message.value("method", "") == "textDocument/publishDiagnostics")
            m_findings[message["params"]["uri"].get<std::string>()] = message["params"]["diagnostics"];
    }

    int m_asked = 0;
    std::map<std::string, Json> m_findings;
};
