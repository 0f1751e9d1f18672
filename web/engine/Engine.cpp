// The language server in a page: a message of the protocol in, the messages that it sends out. The files are those of the
// module's file system in memory.
#include "lytdlg/serve/Server.h"

#include <afxwin.h>

#include <emscripten.h>

namespace
{

std::string sent; // a JSON array

void Send(const lytdlg::Json& message)
{
    sent += (sent == "[" ? "" : ",") + lytdlg::TextOf(message);
}

lytdlg::Server& TheServer()
{
    static const auto server = []
    {
        // The templates of the library are in this program.
        AfxGetStaticModuleState()->m_hCurrentResourceHandle = GetModuleHandleA(nullptr);
        return std::make_unique<lytdlg::Server>(Send, std::vector<std::string>(), std::vector<std::string>());
    }();
    return *server;
}

// A JSON array of what the work sends, valid until the next call.
const char* SentBy(const std::function<void(lytdlg::Server& server)>& work)
{
    sent = "[";
    try
    {
        work(TheServer());
    }
    catch (const std::exception& failure)
    {
        Send({{"jsonrpc", "2.0"},
              {"method", "window/logMessage"},
              {"params", {{"type", 1}, {"message", failure.what()}}}});
    }
    catch (CException* failure)
    {
        failure->Delete();
    }
    sent += "]";
    return sent.c_str();
}

} // namespace

// Takes a message, and does all that cannot wait.
extern "C" EMSCRIPTEN_KEEPALIVE const char* lytengine_take(const char* message)
{
    return SentBy(
        [&](lytdlg::Server& server)
        {
            server.Receive(message);
            while (server.IsUrgent())
                server.Work();
        });
}

// Does a piece of what can wait; null if there is nothing.
extern "C" EMSCRIPTEN_KEEPALIVE const char* lytengine_work()
{
    return TheServer().HasWork() ? SentBy([](lytdlg::Server& server) { server.Work(); }) : nullptr;
}
