// A server that is killed, after any message of a session, has changed no file.
#include "ExampleFindings.h"
#include "FolderContents.h"

#include "lytdlg/serve/MessageStream.h"
#include "lytdlg/serve/Session.h"
#include "lytdlg/text/Uri.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace lytdlg
{

namespace
{

class ServerProcess
{
public:
    ServerProcess()
    {
        int in[2] = {};
        int out[2] = {};
        if (pipe(in) != 0 || pipe(out) != 0)
            throw std::runtime_error("no pipe");
        m_process = fork();
        if (m_process == 0)
        {
            dup2(in[0], STDIN_FILENO);
            dup2(out[1], STDOUT_FILENO);
            for (const int end : {in[0], in[1], out[0], out[1]})
                close(end);
            execl(LYT_PROGRAM, LYT_PROGRAM, "lsp", nullptr);
            _exit(1);
        }
        close(in[0]);
        close(out[1]);
        m_in = in[1];
        m_out = out[0];
    }
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;
    ~ServerProcess()
    {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
        close(m_in);
        close(m_out);
    }

    void Take(const Json& message)
    {
        const std::string bytes = WithHeader(message.dump());
        ASSERT_EQ(write(m_in, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    void AwaitAnswer(const Json& id)
    {
        char bytes[4096];
        for (ssize_t count = 0; (count = read(m_out, bytes, sizeof bytes)) > 0;)
        {
            m_stream.Feed(bytes, static_cast<size_t>(count));
            while (const std::optional<std::string> message = m_stream.Take())
            {
                if (Json::parse(*message).value("id", Json()) == id)
                    return;
            }
        }
        FAIL() << "the server has ended";
    }

private:
    pid_t m_process = 0;
    int m_in = 0;
    int m_out = 0;
    MessageStream m_stream;
};

// What an editor with everything asks that could lead to a change of a file. Requests have numbers.
std::vector<Json> SessionIn(const TestFolder& folder)
{
    const std::string dialog = UriOf(folder.File("a.dlg"));
    const std::string text = ExampleDescription("$VALUES\nUnit = HIDEN\nAdd: DIALOG = other, parent, parent\n");
    const Json place = {{"line", 4}, {"character", 30}};
    const Json params = {
        {"textDocument", {{"uri", dialog}, {"text", text}}},
        {"contentChanges", {{{"text", text + "; more\n"}}}},
        {"position", place},
        {"range", {{"start", {{"line", 0}, {"character", 0}}}, {"end", {{"line", 99}, {"character", 0}}}}},
        {"context", {{"diagnostics", Json::array()}, {"only", {"source.fixAll"}}}},
        {"newName", "Renamed"},
        {"name", "a case"},
        {"acts", {"set Name = x", "press Add"}},
        {"places", {{{"line", 4}, {"x", 50}}}},
        {"lines", {4}},
        {"type", "TextBox"},
        {"data", dialog},
        {"command", checkFolderCommand},
        {"arguments", {UriOf(folder.Path())}}};
    std::vector<Json> session = {
        {{"id", 0},
         {"method", "initialize"},
         {"params", {{"capabilities", {{"workspace", {{"workspaceEdit", {{"resourceOperations", {"rename"}}}}}}}}}}}};
    for (const Method& method : Methods())
    {
        const std::string name = method.name;
        if (name == "initialize" || name == "exit" || name == "shutdown" || name == "textDocument/didClose")
            continue;
        session.push_back({{"method", name}, {"params", params}});
        if (!name.starts_with("textDocument/did") && !name.starts_with("workspace/did") && name != "initialized")
            session.back()["id"] = session.size();
    }
    session.push_back({{"method", "textDocument/didClose"}, {"params", params}});
    session.push_back({{"id", 999}, {"method", "shutdown"}});
    return session;
}

} // namespace

TEST(KilledServer, HasChangedNoFile)
{
    const FolderWithExamples folder;
    folder.Write("a.dlg", ExampleDescription(""));
    folder.Write("a.case", "dialog: a.dlg\nset Name = x\n");
    const auto before = ContentsOf(folder.Path());
    const std::vector<Json> session = SessionIn(folder);
    for (size_t count = 1; count <= session.size(); ++count)
    {
        SCOPED_TRACE(session[count - 1]["method"]);
        for (const bool isAwaited : {false, true})
        {
            ServerProcess server;
            for (size_t index = 0; index < count; ++index)
                server.Take(session[index]);
            if (isAwaited && session[count - 1].contains("id"))
                server.AwaitAnswer(session[count - 1]["id"]);
        }
        EXPECT_EQ(ContentsOf(folder.Path()), before);
    }
}

} // namespace lytdlg
