// What an editor asks of the language server.
#include "native/Works.h"

#include "frame/Discard.h"
#include "lytdlg/serve/Server.h"
#include "lytdlg/text/Uri.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <unistd.h>

namespace
{

using lytdlg::Json;

// Fields with their rules, in as many lines. The caption of the first is a text that all such dialogs show.
std::string DescriptionOf(int lines)
{
    constexpr int columns = 40;
    constexpr int otherLines = 14;
    const int fields = (lines - otherLines) / 2;
    DescriptionText text;
    text.section = "Shared";
    text.layout = "Text 0, 700, 36, 12, \"Shared\", .Label\n";
    for (int index = 0; index < fields; ++index)
    {
        const std::string name = "Field" + std::to_string(index);
        text.layout += "TextBox " + std::to_string(index % columns * 40) + ", " + std::to_string(index / columns * 24) +
                       ", 36, 19, ." + name + "\n";
        text.dependencies += name + "/ACTIVE = Field" + std::to_string(index / 2) + "(NOTNULL)\n";
    }
    text.input = "Start: (999, End = Field0\n";
    return text();
}

class Editor
{
public:
    Editor() { Ask("initialize", Json::object()); }

    void Open(const std::string& path, const std::string& text)
    {
        m_uri = lytdlg::UriOf(path);
        m_server.Receive(
            Json{{"method", "textDocument/didOpen"}, {"params", {{"textDocument", {{"uri", m_uri}, {"text", text}}}}}}
                .dump());
        WorkOut();
    }
    // As an editor does that opens many at once.
    void OpenAll(const std::map<std::string, std::string>& texts)
    {
        for (const auto& [path, text] : texts)
            m_server.Receive(Json{{"method", "textDocument/didOpen"},
                                  {"params", {{"textDocument", {{"uri", lytdlg::UriOf(path)}, {"text", text}}}}}}
                                 .dump());
        WorkOut();
    }
    // Until the first findings are there.
    void Type(const Json& change)
    {
        m_hasFindings = false;
        m_server.Receive(
            Json{{"method", "textDocument/didChange"},
                 {"params", {{"textDocument", {{"uri", m_uri}}}, {"contentChanges", Json::array({change})}}}}
                .dump());
        while (!m_hasFindings)
            m_server.Work();
    }
    const Json& Ask(const char* method, Json params)
    {
        params["textDocument"]["uri"] = m_uri;
        m_server.Receive(Json{{"id", 1}, {"method", method}, {"params", std::move(params)}}.dump());
        WorkOut();
        if (!m_last.contains("result"))
        {
            std::fprintf(stderr, "bench: %s\n", m_last.dump().c_str());
            std::exit(1);
        }
        return m_last["result"];
    }

    void WorkOut()
    {
        while (m_server.HasWork())
            m_server.Work();
    }

private:
    Json m_last;
    bool m_hasFindings = false;
    std::string m_uri;
    lytdlg::Server m_server{[this](const Json& message)
                            {
                                m_last = message;
                                m_hasFindings |= message.value("method", "") == "textDocument/publishDiagnostics";
                            },
                            {},
                            {}};
};

Json RangeFrom(int line, int begin, int end)
{
    return {{"start", {{"line", line}, {"character", begin}}}, {"end", {{"line", line}, {"character", end}}}};
}

} // namespace

void MeasureEditorChange(const BenchMeter& meter)
{
    const TestFolder folder;
    Editor editor;
    editor.Open(folder.File("typed.dlg"), DescriptionOf(meter.Size()));
    bool isTyped = false;
    const auto type = [&]
    {
        editor.Type({{"range", RangeFrom(10, 0, isTyped ? 1 : 0)}, {"text", isTyped ? "" : " "}});
        isTyped = !isTyped;
    };
    const auto finish = [&] { editor.WorkOut(); };
    meter.Compare({{"ours", type, finish}, {"trials", finish, type}});
}

void MeasureEditorCompletion(const BenchMeter& meter)
{
    const TestFolder folder;
    Editor editor;
    const std::string text = DescriptionOf(meter.Size());
    editor.Open(folder.File("typed.dlg"), text);
    const size_t rule = text.find("/ACTIVE = ");
    const auto line = std::count(text.begin(), text.begin() + static_cast<ptrdiff_t>(rule), '\n');
    const Json position = {{"line", line}, {"character", std::string("Field0/ACTIVE = ").size()}};
    meter.Compare({{"ours", [&] { Discard(editor.Ask("textDocument/completion", {{"position", position}}).size()); }}});
}

// What the process holds in memory while all the dialogs are open and judged.
void MeasureEditorMemory(const BenchMeter& meter)
{
    const TestFolder folder;
    constexpr int lines = 100;
    std::map<std::string, std::string> texts;
    for (int index = 0; index < meter.Size(); ++index)
        texts[folder.File("dialog" + std::to_string(index) + ".dlg")] = DescriptionOf(lines);
    Editor editor;
    editor.OpenAll(texts);
    std::ifstream statistics("/proc/self/statm");
    double pages = 0;
    statistics >> pages >> pages;
    meter.Report(pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024);
}

void MeasureEditorRename(const BenchMeter& meter)
{
    const TestFolder folder;
    constexpr int lines = 100;
    const std::string text = DescriptionOf(lines);
    for (int index = 0; index < meter.Size(); ++index)
        folder.Write("dialog" + std::to_string(index) + ".dlg", text);
    folder.Write("lang/English.nls", "[Shared]\nShared=&Shared\n");
    Editor editor;
    editor.Open(folder.File("dialog0.dlg"), text);
    const size_t key = text.find("\"Shared\"");
    const auto line = std::count(text.begin(), text.begin() + static_cast<ptrdiff_t>(key), '\n');
    const size_t start = text.rfind('\n', key);
    const Json position = {{"line", line}, {"character", key - start}};
    meter.Compare(
        {{"ours", [&] {
              Discard(editor.Ask("textDocument/rename", {{"position", position}, {"newName", "Common"}}).size());
          }}});
}
