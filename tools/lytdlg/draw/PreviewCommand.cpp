#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/draw/SvgPen.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Watch.h"
#include "lytdlg/try/TrialRun.h"

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
    const int pixelsPerInch = request.Number("--dpi", 0);
    const Resolution resolution(pixelsPerInch != 0 ? pixelsPerInch : PixelsPerInch());
    TrialRun run(SetupOf(request), false);
    std::string svg;
    DialogState opened;
    const auto look = [&](const Trial& trial)
    {
        if (trial.Top() == nullptr)
            return;
        svg = DrawSvg(See(*trial.Top()), {request.Has("--names"), request.Has("--tabs")});
        opened = LookAt(*trial.Top());
    };
    const Outcome outcome = run.trial.Run({look});
    if (outcome.ending == Ending::NotOpened)
    {
        TellError(dialog +
                  ": the library refuses it: " + ToUtf8(outcome.failureNumber + ": " + outcome.failureMessage));
        return found;
    }
    WriteOut(target, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + svg);
    // The drawing shows what the window shows, which is not always the value.
    for (const ControlState& state : opened.controls)
    {
        if (!state.lostText.empty())
            TellError(dialog + ": " + ToUtf8(state.name) + " has the value " + Quoted(ToUtf8(*state.value)) + "; " +
                      DescribeLostText(state));
    }
    ExitCode verdict = good;
    for (const Event& event : run.events)
    {
        if (event.kind != EventKind::Message)
            continue;
        TellError(dialog + ": shows a message while it opens: " + ToUtf8(event.text));
        verdict = found;
    }
    return verdict;
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
