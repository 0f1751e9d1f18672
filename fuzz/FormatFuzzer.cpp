// Composes items by a format, and expands the escapes of each.
#include "dialog/ClytDialog.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Despair.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"

namespace
{
namespace format_fuzzer
{

constexpr int mostItems = 25;

void ExpandEscapes(CString text)
{
    const int length = text.GetLength();
    ClytDialog::ExpandEscapes(text);
    DemandNone(text.GetLength() == length ? "" : "escapes change the length of a text");
}

void Run(const std::string& input)
{
    InputText lines(input);
    const CString format = lines.Line().c_str();
    int length = format.GetLength();
    CStringArray items;
    items.SetSize(mostItems);
    for (int count = 0; count < mostItems && !lines.IsAtEnd(); ++count)
    {
        items.SetAt(count, lines.Line().c_str());
        length += items[count].GetLength();
    }
    CString text;
    Attempt([&] { text = ClytDialog::FormatOutput(format, items); });
    DemandNone(text.GetLength() <= length ? "" : "a composed text is longer than its format and items");
    ExpandEscapes(text);
    ExpandEscapes(input.c_str());
}

std::vector<std::string> Seeds()
{
    return {
        "%s is \\\"%.2s\\\" and %0.5s%5s\\n%s\none\ntwo\nthree\n\\\nfive",
        "plain text\nitem",
        "(%s;%s;%s)/1REPT   \nHeading\nR\n%s",
        "%%%.s%.99999999999s%-5s%\n\\n\n\\t\\",
    };
}

} // namespace format_fuzzer
} // namespace

const Fuzzer formatFuzzer = {"format", "a format; items, a line each", format_fuzzer::Run, format_fuzzer::Seeds};
