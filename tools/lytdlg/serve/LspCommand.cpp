#include "lytdlg/Commands.h"

#include "commandline/Program.h"
#include "lytdlg/serve/MessageStream.h"
#include "lytdlg/serve/Server.h"
#include "lytdlg/serve/WaitingInput.h"

namespace lytdlg
{

namespace
{

void Write(const Json& message)
{
    commandline::WriteBytes(WithHeader(TextOf(message)));
    std::fflush(stdout);
}

// False at the end of the input.
bool TakeInput(MessageStream& stream, Server& server)
{
    char buffer[65536];
    const size_t count = ReadInput(buffer, sizeof buffer);
    stream.Feed(buffer, count);
    while (const std::optional<std::string> message = stream.Take())
        server.Receive(*message);
    return count > 0;
}

ExitCode Serve(const Request& request)
{
    Server server(Write, request.Texts("--partners"), request.Texts("--define"));
    MessageStream stream;
    bool isInputOpen = true;
    while (!server.IsOver() && (isInputOpen || server.HasWork()))
    {
        // A message may cancel one that waits, and a text that changes again need not be judged before.
        if (isInputOpen && (!server.HasWork() || IsInputWaiting()))
            isInputOpen = TakeInput(stream, server);
        else
            server.Work([&] { return isInputOpen && IsInputWaiting(); });
    }
    return server.WasShutDown() ? good : found;
}

} // namespace

Command LspCommand()
{
    return {{"lsp",
             "",
             0,
             0,
             "serve an editor: the language server protocol on standard input and output",
             {{"--define", "WORD", false, "read the lines that this define switches on; may be given more than once"},
              {"--partners", "FOLDER", false, "a folder that holds partner libraries; may be given more than once"}}},
            Serve};
}

} // namespace lytdlg
