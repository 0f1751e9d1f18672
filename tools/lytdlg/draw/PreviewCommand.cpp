#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/draw/DrawnTrial.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Watch.h"

#include <algorithm>
#include <iterator>

namespace lytdlg
{

using commandline::Quoted;
using commandline::ToUtf8;
using commandline::UsageError;

namespace
{

// Opens the dialog as a call does, looks at it, and closes it again.
ExitCode DrawDialog(const Request& request)
{
    const std::string dialog = request.Operand(0, "");
    const std::string target = request.Text("-o", "");
    if (!target.empty() && ExtensionOf(target) != ".svg")
        throw UsageError("\"" + target + "\" is no kind of picture; the name ends in .svg");
    const DrawnTrial drawn =
        DrawAfter(SetupOf(request), "", request.Number("--dpi", 0), {request.Has("--names"), request.Has("--tabs")});
    if (drawn.outcome.ending == Ending::NotOpened)
    {
        TellError(dialog + ": the library refuses it: " +
                  ToUtf8(drawn.outcome.failureNumber + ": " + drawn.outcome.failureMessage));
        return found;
    }
    WriteOut(target, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + drawn.svg);
    // The drawing shows what the window shows, which is not always the value.
    for (const auto& [seen, state] : drawn.controls)
    {
        if (!state.lostText.empty())
            TellError(dialog + ": " + ToUtf8(state.name) + " has the value " + Quoted(ToUtf8(*state.value)) + "; " +
                      DescribeLostText(state));
    }
    for (const std::string& message : drawn.messages)
        TellError(dialog + ": shows a message while it opens: " + ToUtf8(message));
    return drawn.messages.empty() ? good : found;
}

ExitCode Preview(const Request& request)
{
    return DoWatching(request, DrawDialog);
}

} // namespace

Command PreviewCommand()
{
    std::vector<commandline::OptionForm> options = {
        {"-o", "FILE", false, "an .svg file; else the drawing is printed"},
        {"--dpi", "96|120", true, "the resolution of the screen (as it is; on Linux 96)"},
        {"--names", nullptr, false, "the names of the controls, and hidden ones in outline"},
        {"--tabs", nullptr, false, "the order of the Tab key"},
        {"--input", "TEXT", false, "the text that the dialog takes apart (none)"},
        watchOption};
    std::ranges::copy(SetupOptions(), std::back_inserter(options));
    return {{"preview", "DIALOG", 1, 1, "draw a dialog as it would appear on the screen", options}, Preview};
}

} // namespace lytdlg
