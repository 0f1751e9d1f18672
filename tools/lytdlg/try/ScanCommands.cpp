#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "exports/NamedDialogs.h"
#include "lytdlg/text/DescriptionPaths.h"
#include "lytdlg/trip/GeneratedTrips.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/TrialRun.h"
#include "model/ClytWords.h"

#include <algorithm>
#include <cstdio>
#include <span>

namespace lytdlg
{

using commandline::PrintLine;
using commandline::PrintText;
using commandline::Quoted;
using commandline::ToUtf8;

namespace
{

constexpr commandline::OptionForm traceOption = {"--trace", nullptr, false, "print each step"};

// What a list or an option group holds when it does not take the last value that it was given.
std::string KeptValue(std::span<const FillRecord> fills, const DialogState& state)
{
    const FillRecord& fill = fills.front();
    const ControlState* control = state.Find(fill.control);
    const bool isValue =
        fill.action.empty() && !fill.value.empty() && !lytMeans<ClytValueWord::Fill>(fill.value.c_str());
    if (control == nullptr || !isValue || control->value == fill.value)
        return "";
    const ClytType& type = lytTypeOf(control->type);
    const bool isLast =
        std::ranges::none_of(fills.subspan(1), [&](const FillRecord& later) { return later.control == fill.control; });
    if (!isLast || !(type.hasItems || type.kind == ClytKind::OptionGroup))
        return "";
    const std::string link = fill.text.starts_with("takes") ? ", but " : ", and ";
    return link + (control->value ? "its value is " + Quoted(ToUtf8(*control->value)) : "nothing is chosen in it");
}

void PrintFills(const Recorder& recorder, const DialogState& state)
{
    std::span<const FillRecord> fills = recorder.Fills();
    for (; !fills.empty(); fills = fills.subspan(1))
    {
        const FillRecord& fill = fills.front();
        PrintLine("line " + std::to_string(fill.line) + " " + ToUtf8(fill.statement + ": " + fill.control) + " " +
                  fill.text + KeptValue(fills, state));
    }
    const std::string end = recorder.Steps().empty() ? "Start" : recorder.Steps().back().next;
    if (end == "End" || end.empty())
        std::printf("the scan ended at %s\n", end.empty() ? "the end of the text" : "End");
    else
        std::printf("the scan ended at %s, which is no statement\n", Quoted(ToUtf8(end)).c_str());
    if (!recorder.Rest().empty())
        std::printf("left over: %s\n", Quoted(recorder.Rest()).c_str());
}

ExitCode Scan(const Request& request)
{
    Setup setup = SetupOf(request);
    const std::string part = commandline::AsAnsi(request.Text("--part", lytParentName));
    const std::string text = setup.input;
    // Any other part works on a dialog that is open.
    const bool isParent = part == lytParentName;
    if (!isParent)
        setup.input.clear();
    TrialRun run(setup, request.Has("--trace"));
    DialogState state;
    const auto scan = [&](TrialDialog& dialog)
    {
        if (!isParent)
        {
            CheckKnown("input part", part, FactsOf(dialog).parts);
            run.recorder.ForgetScan();
            run.events.clear();
            dialog.RunInput(part.c_str(), text.c_str());
        }
        state = LookAt(dialog);
    };
    if (run.Run({}, scan).ending == Ending::NotOpened)
        return static_cast<ExitCode>(run.PrintFailure());
    run.PrintEvents();
    PrintFills(run.recorder, state);
    return good;
}

int PrintComposed(const Recorder& recorder, const std::string& group, const std::string& text)
{
    const OutputRecord& output = recorder.LastOutput();
    if (output.line != 0)
    {
        PrintText("result", text);
        std::printf("by the rule in line %d\n", output.line);
        return good;
    }
    std::printf("no rule of the output group %s holds\n", Quoted(ToUtf8(group)).c_str());
    for (size_t index = 0; index < output.refusals.size(); ++index)
        PrintLine("line " + std::to_string(output.refusedLines[index]) + ": " + output.refusals[index].text);
    return found;
}

ExitCode Compose(const Request& request)
{
    const std::string group = commandline::AsAnsi(request.Text("--group", lytParentName));
    TrialRun run(SetupOf(request), request.Has("--trace"));
    CString text;
    const auto compose = [&](TrialDialog& dialog)
    {
        CheckKnown("output group", group, FactsOf(dialog).groups);
        dialog.ComposeNamedOutput(group.c_str(), text);
    };
    if (run.Run(ActsOf(request), compose).ending == Ending::NotOpened)
        return static_cast<ExitCode>(run.PrintFailure());
    run.PrintEvents();
    return static_cast<ExitCode>(PrintComposed(run.recorder, group, text.GetString()));
}

// What follows this mark in the result of a group's dialog is for the macros.
std::string PlaceholderOf(const std::string& result)
{
    const size_t mark = result.find(lytGroupMark);
    return mark != std::string::npos ? result.substr(0, mark + 1) : result;
}

// What a text comes back as; the reason in words when it does not.
std::string RoundOf(const Setup& setup, const std::string& text)
{
    TrialRun run(setup, false);
    CString composed;
    bool isComposed = false;
    const auto compose = [&](TrialDialog& dialog)
    { isComposed = dialog.ComposeNamedOutput(lytParentName, composed) != 0; };
    const Outcome& outcome = run.Run({}, compose);
    if (outcome.ending == Ending::NotOpened)
        return "the dialog does not open: " + Quoted(ToUtf8(outcome.failureMessage));
    if (!isComposed)
        return "no output rule holds";
    const std::string result = PlaceholderOf(composed.GetString());
    return result == text ? "" : "comes back as " + Quoted(ToUtf8(result));
}

std::string DifferenceOf(const GeneratedTrip& trip)
{
    if (trip.again != trip.text)
        return trip.again.empty() ? " does not come back" : " comes back as " + Quoted(ToUtf8(trip.again));
    return trip.lost.empty() ? "" : " comes back with another value of " + ToUtf8(trip.lost);
}

ExitCode RoundtripOfGenerated(const Request& request)
{
    const std::string file = request.Operand(0, "");
    const Description description(file, ReadDescription(file), request.Texts("--define"));
    if (!description.mistakes.empty())
        throw commandline::UsageError("the library refuses this description; `lytdlg check` tells why");
    const GeneratedTrips generated = GenerateTrips(description);
    size_t differences = 0;
    for (const GeneratedTrip& trip : generated.trips)
    {
        const std::string difference = DifferenceOf(trip);
        if (difference.empty())
            continue;
        ++differences;
        PrintLine((trip.typed.empty() ? "" : ToUtf8(trip.typed) + ": ") + Quoted(ToUtf8(trip.text)) + difference);
    }
    std::printf("%zu of %zu generated texts come back as they are\n", generated.trips.size() - differences,
                generated.trips.size());
    for (const std::string& reason : generated.notTried)
        PrintLine("not tried: " + ToUtf8(reason));
    return differences == 0 ? good : found;
}

ExitCode Roundtrip(const Request& request)
{
    if (request.Has("--generate"))
        return RoundtripOfGenerated(request);
    if (!request.Has("--inputs"))
        throw commandline::UsageError(
            "option --inputs FILE is missing; name a file with an input a line, or write --generate");
    Setup setup = SetupOf(request);
    int number = 0;
    int count = 0;
    int differences = 0;
    for (const std::string& line : commandline::LinesOf(ReadUtf8File(request.Text("--inputs", ""))))
    {
        ++number;
        if (line.empty() || line.front() == '#')
            continue;
        ++count;
        setup.input = commandline::AsAnsi(line);
        const std::string difference = RoundOf(setup, setup.input);
        if (difference.empty())
            continue;
        ++differences;
        std::printf("line %d: %s %s\n", number, Quoted(line).c_str(), difference.c_str());
    }
    std::printf("%d of %d inputs come back as they are\n", count - differences, count);
    return differences == 0 ? good : found;
}

std::vector<commandline::OptionForm> SetupOptionsAnd(std::vector<commandline::OptionForm> options)
{
    std::ranges::copy(SetupOptions(), std::back_inserter(options));
    return options;
}

} // namespace

Command ScanCommand()
{
    return {{"scan", "DIALOG", 1, 1, "take a text apart, and print what went where",
             SetupOptionsAnd({{"--input", "TEXT", false, "the text"},
                              {"--part", "NAME", false, "the input part that takes it (parent)"},
                              traceOption})},
            Scan};
}

Command ComposeCommand()
{
    return {{"compose", "DIALOG", 1, 1, "compose a text, and print which rule gave it",
             TrialOptions({{"--group", "NAME", false, "the output group that composes it (parent)"}, traceOption})},
            Compose};
}

Command RoundtripCommand()
{
    return {{"roundtrip", "DIALOG", 1, 1, "take texts apart and compose them again, and print those that change",
             SetupOptionsAnd({{"--inputs", "FILE", false,
                               "a file with one text on each line; lines that begin with '#' are comments"},
                              {"--generate", nullptr, false,
                               "generated texts: all choices, and separators, quotes and brackets in each field"}})},
            Roundtrip};
}

} // namespace lytdlg
