#include "lytdlg/draw/PreviewCommand.h"

#include "commandline/Text.h"
#include "lytdlg/draw/HtmlPage.h"
#include "lytdlg/draw/Output.h"
#include "lytdlg/draw/Png.h"
#include "lytdlg/draw/Screen.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/try/TrialRun.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>

namespace lytdlg
{

namespace fs = std::filesystem;
using commandline::ToUtf8;
using commandline::UsageError;

namespace
{

SvgStyle StyleOf(const Request& request)
{
    SvgStyle style;
    style.showsNames = request.Has("--names");
    style.showsTabs = request.Has("--tabs");
    return style;
}

using Look = std::function<void(const TrialDialog& dialog)>;

// What came of opening a dialog; all in UTF-8.
struct Opening
{
    std::string refusal; // the library's message after its number; empty for a dialog that was looked at
    std::vector<std::string> messages;
};

// Opens the dialog as a call does, lets somebody look at it, and closes it again.
Opening Open(const Setup& setup, const Look& look)
{
    TrialRun run(setup, false);
    const Outcome& outcome = run.Run({}, look);
    if (outcome.ending == Ending::NotOpened)
        return {ToUtf8(outcome.failureNumber + ": " + outcome.failureMessage), {}};
    Opening opening;
    for (const Event& event : run.events)
        opening.messages.push_back(ToUtf8(event.text));
    return opening;
}

ExitCode Tell(const std::string& file, const Opening& opening)
{
    if (!opening.refusal.empty())
        TellError(file + ": the library refuses it: " + opening.refusal);
    for (const std::string& message : opening.messages)
        TellError(file + ": shows a message while it opens: " + message);
    return opening.refusal.empty() && opening.messages.empty() ? good : found;
}

void WriteDrawing(const std::string& file, const std::string& title, const SeenDialog& seen, HWND window,
                  const SvgStyle& style)
{
    const std::string extension = ExtensionOf(file);
    if (extension == ".html")
        WriteOut(file, DialogPage(title, seen, style));
    else if (extension == ".png")
        WritePng(file, window, DrawSvg(seen, style));
    else
        WriteOut(file, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + DrawSvg(seen, style));
}

ExitCode PreviewDialog(const Request& request)
{
    const std::string dialog = request.Operand(0, "");
    const std::string target = request.Text("-o", "");
    const std::string extension = ExtensionOf(target);
    if (!target.empty() && extension != ".svg" && extension != ".png" && extension != ".html")
        throw UsageError("\"" + target + "\" is no kind of picture; the name ends in .svg, .png or .html");
    const Resolution resolution(request.Number("--dpi", PixelsPerInch()));
    const std::string title = PathOf(dialog).filename().string();
    return Tell(dialog, Open(SetupOf(request), [&](const TrialDialog& open)
                             { WriteDrawing(target, title, See(open), open.m_hWnd, StyleOf(request)); }));
}

class Sheet
{
public:
    explicit Sheet(const Request& request)
        : m_request(request), m_folder(request.Text("--sheet", "")), m_languages(LanguagesIn(PathOf(m_folder)))
    {
        if (!fs::is_directory(PathOf(m_folder)))
            throw std::runtime_error("there is no folder \"" + m_folder + "\"");
        if (request.Has("--language"))
            m_languages = {request.Text("--language", "")};
        if (m_languages.empty())
            throw std::runtime_error("there is no language file in \"" + m_folder + "/lang\"");
    }

    ExitCode Write()
    {
        const std::vector<int> resolutions =
            m_request.Has("--dpi") ? std::vector<int>{m_request.Number("--dpi", 0)} : Resolutions();
        for (const fs::path& file : FilesIn(PathOf(m_folder), ".dlg"))
        {
            for (const std::string& language : m_languages)
            {
                for (const int resolution : resolutions)
                    Add(file.string(), language, resolution);
            }
        }
        WriteOut(m_request.Text("-o", ""),
                 SheetPage("Dialogs of " + PathOf(m_folder).filename().string(), m_entries, StyleOf(m_request)));
        return m_code;
    }

private:
    void Add(const std::string& file, const std::string& language, int pixelsPerInch)
    {
        const Resolution resolution(pixelsPerInch);
        Setup setup = SetupOf(m_request);
        setup.dialog = file;
        setup.language = language;
        SheetEntry& entry =
            m_entries.emplace_back(SheetEntry{PathOf(file).filename().string(), language, pixelsPerInch, {}, ""});
        const Opening opening = Open(setup, [&](const TrialDialog& open) { entry.seen = See(open); });
        entry.message = opening.refusal;
        m_code = std::max(m_code, Tell(file + " in " + language, opening));
    }

    const Request& m_request;
    std::string m_folder;
    std::vector<std::string> m_languages;
    std::vector<SheetEntry> m_entries;
    ExitCode m_code = good;
};

ExitCode Preview(const Request& request)
{
    const bool isSheet = request.Has("--sheet");
    if (isSheet == !request.operands.empty())
        throw UsageError(
            "preview draws one dialog, or with --sheet those of a folder; write: lytdlg preview DIALOG, or "
            "lytdlg preview --sheet FOLDER");
    if (!isSheet)
        return PreviewDialog(request);
    const std::string extension = ExtensionOf(request.Text("-o", ""));
    if (!extension.empty() && extension != ".html")
        throw UsageError("a sheet is a page; write: -o FILE.html");
    return Sheet(request).Write();
}

} // namespace

Command PreviewCommand()
{
    std::vector<commandline::OptionForm> options = {
        {"-o", "FILE", false, "an .svg, .png or .html file; else the SVG is printed"},
        {"--sheet", "FOLDER", false, "all dialogs of a folder on one page, in every language and resolution"},
        {"--dpi", "96|120", true, "the resolution of the screen (as it is; on Linux 96)"},
        {"--names", nullptr, false, "the names of the controls, and hidden ones in outline"},
        {"--tabs", nullptr, false, "the order of the Tab key"},
        {"--input", "TEXT", false, "the text that the dialog takes apart (none)"}};
    std::ranges::copy(SetupOptions(), std::back_inserter(options));
    return {{"preview", "[DIALOG]", 0, 1, "draw a dialog as it would stand on the screen", options}, Preview};
}

} // namespace lytdlg
