#include "native/Works.h"

#include "dlgfile/ClytDialogFile.h"
#include "frame/Discard.h"
#include "liveform/LiveForm.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace
{

// A description of that many controls, of the kinds and lengths that descriptions have.
std::string Controls(int count)
{
    DescriptionText text;
    for (int index = 0; index < count; ++index)
    {
        const std::string number = std::to_string(index);
        text.layout += index % 2 == 0 ? "    TextBox 136, 24, 248, 19, .Field" + number + "\n"
                                      : "    Text 24, 27, 100, 12, \"Heading\", .Label" + number + "\n";
    }
    text.input = "Start: x = End\n";
    return text();
}

// The same lines, each cut at the same delimiters into the same number of texts.
void SplitPlainly(const char* name)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name, "r"), std::fclose);
    char line[400];
    while (std::fgets(line, sizeof line, file.get()) != nullptr)
    {
        std::vector<std::string> words;
        for (const char* word = std::strtok(line, " ,\t\n;\""); word != nullptr;
             word = std::strtok(nullptr, " ,\t\n;\""))
            words.emplace_back(word);
        Discard(words.data());
    }
}

void ReadStatements(const char* name)
{
    ClytDialogFile file(nullptr);
    if (!file.Open(name, CFile::modeRead))
        std::abort();
    CString text;
    CStringList words;
    int width = 0;
    int height = 0;
    file.ReadVersionHeader(text);
    file.TakeTokens(words);
    Discard(file.ReadDialogHeader(width, height, text, text));
    ClytControlStatement statement;
    while (file.ReadControlStatement(statement) != 0)
        Discard(statement.x);
    file.Close();
}

void Construct(const char* name)
{
    LiveForm form(name);
    form.Construct();
    Discard(form.m_hWnd);
}

void MakeWindows(int count)
{
    HWND dialog = CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    const auto font = static_cast<WPARAM>(SendMessageA(dialog, WM_GETFONT, 0, 0));
    for (int index = 0; index < count; ++index)
    {
        const bool isField = index % 2 == 0;
        HWND control = CreateWindowExA(0, isField ? "Edit" : "Static", "", WS_CHILD | WS_VISIBLE, 24, 27, 100, 12,
                                       dialog, nullptr, nullptr, nullptr);
        SendMessageA(control, WM_SETFONT, font, TRUE);
    }
    DestroyWindow(dialog);
}

} // namespace

void MeasureStatements(const BenchMeter& meter)
{
    const TestFolder folder;
    const std::string name = folder.Write("statements.dlg", Controls(meter.Size()));
    meter.Compare({
        {"ours", [&] { ReadStatements(name.c_str()); }},
        {"split", [&] { SplitPlainly(name.c_str()); }},
    });
}

void MeasureConstruction(const BenchMeter& meter)
{
    const TestFolder folder;
    const std::string name = folder.Write("controls.dlg", Controls(meter.Size()));
    meter.Compare({
        {"ours", [&] { Construct(name.c_str()); }},
        {"by hand", [&] { MakeWindows(meter.Size()); }},
    });
}
