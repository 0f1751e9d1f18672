// Opening and closing a described dialog against the same controls made by hand, and against a template that knows its
// texts; and loading the library.
#include "lyt64.h"

#include "windows/Works.h"

#include "res/resource.h"
#include "support/Library.h"
#include "support/TestFolder.h"
#include "windows/ByHand.h"

#include <cstdio>
#include <memory>

namespace
{

// The template in this program has as many controls as the middle size.
constexpr int templateId = 100;
constexpr int templateControls = 60;

std::string LabelKey(int field)
{
    return "L" + std::to_string(field);
}

int FieldsOf(int controls)
{
    return (controls - 2) / 2;
}

std::string WriteDescription(const TestFolder& folder, int fields)
{
    std::string texts = "[Buttons]\r\n001=OK\r\n002=Cancel\r\n[TEXTS]\r\nTitle=Sixty controls\r\n";
    std::string controls;
    for (int field = 1; field <= fields; ++field)
    {
        const std::string top = std::to_string(field * 16);
        texts += LabelKey(field) + "=A label of field " + std::to_string(field) + "\r\n";
        controls += "Text 20, " + top + ", 160, 13, \"" + LabelKey(field) + "\", .L" + std::to_string(field) + "\n";
        controls += "TextBox 200, " + top + ", 300, 16, .F" + std::to_string(field) + "\n";
    }
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=English\r\n");
    folder.Write("lang/English.nls", texts);
    return folder.Write("lytInSym.dlg",
                        "$VERSION 1\n$LAYOUT TEXTS\nBegin Dialog Box 600, 560, \"Title\", .Main\n" + controls +
                            "OKButton 120, 500, 120, 22, .Ok\nCancelButton 360, 500, 120, 22, .Cancel\nEnd Dialog\n"
                            "$VALUES\n$DEPENDANCES\n$EVALUATION, x\n$INPUT, parent\nStart: (999, End = F1\n"
                            "$OUTPUT\n(\"%s\", F1)\n$END\n");
}

// What a program does in place of the library that knows the controls of this one dialog: it reads the description and
// the texts at each opening, too.
class DialogByHand
{
public:
    DialogByHand(std::string description, const std::string& folder, int fields)
        : m_description(std::move(description)), m_texts(folder), m_fields(fields)
    {
    }

    void Fill(HWND dialog) const
    {
        ReadDescription();
        Resize(dialog, m_texts.Read("TEXTS", "Title"));
        for (int field = 1; field <= m_fields; ++field)
        {
            AddLabel(dialog, 16 * field, m_texts.Read("TEXTS", LabelKey(field).c_str()));
            AddControl(dialog, WS_EX_CLIENTEDGE, "Edit", "", WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL,
                       {200, 16 * field, 300, 16}, 0);
        }
        AddControl(dialog, 0, "Button", m_texts.Read("Buttons", "001"), WS_TABSTOP | BS_DEFPUSHBUTTON,
                   {120, 500, 120, 22}, IDOK);
        AddControl(dialog, 0, "Button", m_texts.Read("Buttons", "002"), WS_TABSTOP, {360, 500, 120, 22}, IDCANCEL);
    }
    // The texts alone, which are a part of it.
    void ReadTexts() const
    {
        m_texts.Read("TEXTS", "Title");
        for (int field = 1; field <= m_fields; ++field)
            m_texts.Read("TEXTS", LabelKey(field).c_str());
        m_texts.Read("Buttons", "001");
        m_texts.Read("Buttons", "002");
    }

private:
    struct Place
    {
        int x, y, width, height;
    };

    void ReadDescription() const
    {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(m_description.c_str(), "r"), std::fclose);
        char line[400];
        while (std::fgets(line, sizeof line, file.get()) != nullptr)
            continue;
    }
    static void Resize(HWND dialog, const std::string& title)
    {
        RECT client;
        SetWindowPos(dialog, nullptr, 0, 0, 600, 560, SWP_HIDEWINDOW | SWP_NOACTIVATE | SWP_NOREDRAW);
        GetClientRect(dialog, &client);
        SetWindowPos(dialog, nullptr, 0, 0, 1200 - client.right, 1120 - client.bottom,
                     SWP_HIDEWINDOW | SWP_FRAMECHANGED);
        SetWindowTextA(dialog, title.c_str());
        MONITORINFO monitor{};
        monitor.cbSize = sizeof monitor;
        GetMonitorInfoA(MonitorFromWindow(dialog, MONITOR_DEFAULTTONEAREST), &monitor);
        SetWindowPos(dialog, nullptr, monitor.rcWork.right / 4, monitor.rcWork.bottom / 4, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    static HWND AddControl(HWND dialog, DWORD exStyle, const char* windowClass, const std::string& text, DWORD style,
                           Place place, int id)
    {
        HWND control =
            CreateWindowExA(exStyle, windowClass, text.c_str(), WS_CHILD | style, place.x, place.y, place.width,
                            place.height, dialog, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
        SendMessageA(control, WM_SETFONT, static_cast<WPARAM>(SendMessageA(dialog, WM_GETFONT, 0, 0)), TRUE);
        ShowWindow(control, SW_SHOW);
        return control;
    }
    // A label is as large as its text.
    static void AddLabel(HWND dialog, int top, const std::string& text)
    {
        HWND label = AddControl(dialog, 0, "Static", text, SS_LEFT, {20, top, 160, 13}, 0);
        HDC device = GetDC(dialog);
        HGDIOBJ previous = SelectObject(device, reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
        SIZE size;
        GetTextExtentPoint32A(device, text.c_str(), static_cast<int>(text.size()), &size);
        SelectObject(device, previous);
        ReleaseDC(dialog, device);
        SetWindowPos(label, nullptr, 20, top, size.cx, size.cy, SWP_NOZORDER);
    }

    std::string m_description;
    TextsByHand m_texts;
    int m_fields;
};

// Fills the dialog when it is handed one.
INT_PTR CALLBACK PlainDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG && lParam != 0)
        reinterpret_cast<const DialogByHand*>(lParam)->Fill(dialog);
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        EndDialog(dialog, IDCANCEL);
    return message == WM_INITDIALOG;
}

} // namespace

void MeasureDialog(const BenchMeter& meter)
{
    const TestFolder folder;
    const int fields = FieldsOf(meter.Size());
    const DialogByHand byHand(WriteDescription(folder, fields), folder.Path(), fields);
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("doc.rtf", folder.Path().c_str(),
                                                                         folder.Path().c_str());
    auto* const open = Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog");
    HMODULE library = GetModuleHandleA("lyt64.dll");
    const CancelledDialogs cancelled;
    char buffer[100] = "";
    std::vector<BenchSeries> series = {
        {"ours", [&] { open("key", buffer, sizeof buffer); }},
        {"by hand",
         [&]
         {
             LookForCompanion();
             RunDialogByHand(library, IDD_PROPERTIES, PlainDialog, reinterpret_cast<LPARAM>(&byHand));
         }},
        {"texts", [&] { byHand.ReadTexts(); }},
        {"companion", [] { LookForCompanion(); }},
    };
    if (meter.Size() == templateControls)
        series.push_back({"template", [] { RunDialogByHand(GetModuleHandleA(nullptr), templateId, PlainDialog, 0); }});
    meter.Compare(series);
}

void MeasureLoading(const BenchMeter& meter)
{
    meter.Compare({
        {"ours", [] { FreeLibrary(LoadLibraryA("lyt64.dll")); }},
        {"empty", [] { FreeLibrary(LoadLibraryA("empty-library.dll")); }},
    });
}
