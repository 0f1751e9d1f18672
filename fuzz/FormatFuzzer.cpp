// Composes items by a format, and expands the escapes of each.
#include "dialog/ClytDialog.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"

namespace
{
namespace format_fuzzer
{

constexpr int mostItems = 25;

void Run(const std::string& input)
{
    InputText lines(input);
    const std::string format = lines.Line();
    CStringArray items;
    items.SetSize(mostItems);
    for (int count = 0; count < mostItems && !lines.IsAtEnd(); ++count)
        items.SetAt(count, lines.Line().c_str());
    CString text;
    Attempt([&] { text = ClytDialog::FormatOutput(format.c_str(), items); });
    ClytDialog::ExpandEscapes(text);
    text = input.c_str();
    ClytDialog::ExpandEscapes(text);
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
