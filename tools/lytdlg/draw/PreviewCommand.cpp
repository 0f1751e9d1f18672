#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/draw/Snapshot.h"
#include "lytdlg/draw/SvgPen.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Watch.h"
#include "lytdlg/try/ControlState.h"
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

// The drawing shows what the window shows, which is not always the value.
void TellLostTexts(const std::string& dialog, const DialogState& state)
{
    for (const ControlState& control : state.controls)
    {
        if (!control.lostText.empty())
            TellError(dialog + ": " + ToUtf8(control.name) + " has the value " + Quoted(ToUtf8(*control.value)) + "; " +
                      DescribeLostText(control));
    }
}

// Opens the dialog as a call does, looks at it, and closes it again.
ExitCode DrawDialog(const Request& request)
{
    const std::string dialog = request.Operand(0, "");
    const std::string target = request.Text("-o", "");
    if (!target.empty() && ExtensionOf(target) != ".svg")
        throw UsageError("\"" + target + "\" is no kind of picture; the name ends in .svg");
    const Resolution resolution(request.Number("--dpi", PixelsPerInch()));
    const SvgStyle style = {request.Has("--names"), request.Has("--tabs")};
    TrialRun run(SetupOf(request), false);
    const auto draw = [&](const TrialDialog& open)
    {
        WriteOut(target, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + DrawSvg(See(open), style));
        TellLostTexts(dialog, LookAt(open));
    };
    const Outcome& outcome = run.Run({}, draw);
    if (outcome.ending == Ending::NotOpened)
    {
        TellError(dialog +
                  ": the library refuses it: " + ToUtf8(outcome.failureNumber + ": " + outcome.failureMessage));
        return found;
    }
    for (const Event& event : run.events)
        TellError(dialog + ": shows a message while it opens: " + ToUtf8(event.text));
    return run.events.empty() ? good : found;
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
