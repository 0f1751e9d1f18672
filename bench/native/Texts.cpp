#include "native/Works.h"

#include "environment/ClytEnvironment.h"
#include "frame/Discard.h"
#include "liveform/LiveForm.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"
#include "sysinfo/frame/Report.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{

constexpr int fields = 25;

std::string Field(int index)
{
    return "F" + std::to_string(index);
}

// Scans pieces of a text into two controls in turn, which need not be there, and composes all fields.
std::string TextDescription(const std::string& first, const std::string& second)
{
    DescriptionText text;
    std::string items;
    std::string format;
    for (int index = 0; index < fields; ++index)
    {
        text.layout += "TextBox 0, 0, 1, 1, ." + Field(index) + "\n";
        items += ", " + Field(index);
        format += "%s;";
    }
    text.input =
        "Start: (\";\", Second, Rest, End = " + first + "\nSecond: (\";\", Start, Rest, End = " + second + "\n";
    text.output = "(\"" + format + "\"" + items + ")\n";
    return text();
}

class TextForm
{
public:
    explicit TextForm(const std::string& first = Field(0), const std::string& second = Field(1))
        : m_form(m_folder.Write("text.dlg", TextDescription(first, second)).c_str())
    {
        m_form.Construct();
    }

    LiveForm* operator->() { return &m_form; }
    const LiveForm& operator*() const { return m_form; }

private:
    TestFolder m_folder;
    LiveForm m_form;
};

std::string TextOfPieces(int size)
{
    std::string text;
    while (text.size() < static_cast<size_t>(size))
        text += "a piece (of some; kind) \"with; quotes\";";
    text.resize(static_cast<size_t>(size));
    return text;
}

void LookForSeparators(const char* text)
{
    for (const char* mark = std::strpbrk(text, ";"); mark != nullptr; mark = std::strpbrk(mark + 1, ";"))
        Discard(mark);
}

// A dialog with one field, worked by hand.
class FieldByHand
{
public:
    FieldByHand()
        : m_dialog(CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr)),
          m_field(
              CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 1, 1, m_dialog, nullptr, nullptr, nullptr))
    {
    }
    FieldByHand(const FieldByHand&) = delete;
    FieldByHand& operator=(const FieldByHand&) = delete;
    ~FieldByHand() { DestroyWindow(m_dialog); }

    // Each piece of the text between two separators in turn; the text is the same again afterwards.
    void SetEachPiece(std::string& text) const
    {
        for (size_t begin = 0; begin < text.size();)
        {
            const size_t end = std::min(text.find(';', begin), text.size() - 1);
            const char mark = std::exchange(text[end], '\0');
            SetWindowTextA(m_field, &text[begin]);
            text[end] = mark;
            begin = end + 1;
        }
    }

private:
    HWND m_dialog;
    HWND m_field;
};

void CopyText(const CString& text)
{
    const std::string copy(text.GetString(), static_cast<size_t>(text.GetLength()));
    Discard(copy.data());
}

// The texts of the fields, one after the other, with what the format has between them.
void JoinByHand(const LiveForm& form)
{
    std::string joined;
    for (int index = 0; index < fields; ++index)
    {
        HWND field = form.Window(Field(index).c_str())->m_hWnd;
        std::string text(static_cast<size_t>(GetWindowTextLengthA(field)), '\0');
        GetWindowTextA(field, text.data(), static_cast<int>(text.size()) + 1);
        joined += text;
        joined += ';';
    }
    Discard(joined.data());
}

} // namespace

void MeasureScan(const BenchMeter& meter)
{
    TextForm form("Nobody", "Nobody");
    const std::string text = TextOfPieces(meter.Size());
    const CString input(text.c_str());
    meter.Compare({
        {"ours", [&] { Discard(form->RunInput("parent", input)); }},
        {"strpbrk", [&] { LookForSeparators(text.c_str()); }},
    });
}

void MeasureScanIntoFields(const BenchMeter& meter)
{
    TextForm form;
    std::string text = TextOfPieces(meter.Size());
    const CString input(text.c_str());
    const FieldByHand field;
    meter.Compare({
        {"ours", [&] { Discard(form->RunInput("parent", input)); }},
        {"fields", [&] { field.SetEachPiece(text); }},
    });
}

void MeasureComposition(const BenchMeter& meter)
{
    TextForm form;
    const std::string part(static_cast<size_t>(meter.Size() / fields), 'x');
    for (int index = 0; index < fields; ++index)
        form->FindControl(Field(index).c_str())->SetValue(part.c_str());
    CString composed;
    form->ComposeNamedOutput("parent", composed);
    const CString whole(composed);
    meter.Compare({
        {"ours", [&] { Discard(form->ComposeNamedOutput("parent", composed)); }},
        {"copy", [&] { CopyText(whole); }},
        {"by hand", [&] { JoinByHand(*form); }},
    });
}

void MeasureReportLines(const BenchMeter& meter)
{
    static constexpr const char* text = "  a line of the report, as long as most of them are";
    const std::vector<std::string> lines(static_cast<size_t>(meter.Size()), text);
    lytEnvironment.lytReportLines.RemoveAll();
    for (const std::string& line : lines)
        AddReportLine(line.c_str());
    char target[256];
    meter.Compare({
        {"ours",
         [&]
         {
             for (int index = 0; index < meter.Size(); ++index)
                 Discard(lytReadReportLine(index, target, sizeof target));
         }},
        {"copy",
         [&]
         {
             for (const std::string& line : lines)
                 Discard(std::memcpy(target, line.c_str(), line.size() + 1));
         }},
    });
}
