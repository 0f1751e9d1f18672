// The language server in a page: a message of the protocol in, the messages that it sends out. The files are those of the
// module's file system in memory.
#include "lytdlg/serve/Server.h"

#include <afxwin.h>

#include <emscripten.h>

namespace
{

lytdlg::Json& Sent()
{
    static lytdlg::Json sent = lytdlg::Json::array();
    return sent;
}

lytdlg::Server& TheServer()
{
    static const auto server = []
    {
        // The templates of the library are in this program.
        AfxGetStaticModuleState()->m_hCurrentResourceHandle = GetModuleHandleA(nullptr);
        return std::make_unique<lytdlg::Server>([](const lytdlg::Json& message) { Sent().push_back(message); },
                                                std::vector<std::string>(), std::vector<std::string>());
    }();
    return *server;
}

} // namespace

// Takes a message, and does all work that there is after it. Gives a JSON array of messages, valid until the next call.
extern "C" EMSCRIPTEN_KEEPALIVE const char* lytengine_take(const char* message)
{
    static std::string text;
    Sent() = lytdlg::Json::array();
    try
    {
        TheServer().Receive(message);
        while (TheServer().HasWork())
            TheServer().Work();
    }
    catch (const std::exception& failure)
    {
        Sent().push_back({{"jsonrpc", "2.0"},
                          {"method", "window/logMessage"},
                          {"params", {{"type", 1}, {"message", failure.what()}}}});
    }
    catch (CException* failure)
    {
        failure->Delete();
    }
    text = lytdlg::TextOf(Sent());
    return text.c_str();
}
