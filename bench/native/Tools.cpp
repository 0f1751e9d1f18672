// What the commands of lytdlg do with a description that grows.
#include "native/Works.h"

#include "frame/Discard.h"
#include "lytdlg/Commands.h"
#include "lytdlg/judge/Judge.h"
#include "lytdlg/text/DescriptionLines.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace
{

// Fields side by side, each with its rule and its place in the output: nothing that a rule of the check finds.
std::string Description(int fields)
{
    constexpr int columns = 40;
    DescriptionText text;
    for (int index = 0; index < fields; ++index)
    {
        const std::string name = "Field" + std::to_string(index);
        text.layout += "TextBox " + std::to_string(index % columns * 40) + ", " + std::to_string(index / columns * 24) +
                       ", 36, 19, ." + name + "\n";
        text.dependencies += name + "/ACTIVE = Field" + std::to_string((index + 1) % fields) + "(NOTNULL)\n";
    }
    text.input = "Start: (999, End = Field0\n";
    return text();
}

std::string TextOf(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void CopyLines(const std::string& from, const std::string& to)
{
    std::ifstream in(from);
    std::ofstream out(to);
    for (std::string line; std::getline(in, line);)
        out << line << '\n';
}

void Draw(const std::string& description, const std::string& target)
{
    if (lytdlg::Run({"preview", description, "-o", target}) == lytdlg::good)
        return;
    std::fprintf(stderr, "bench: the dialog is not drawn\n");
    std::exit(1);
}

} // namespace

void MeasureCheck(const BenchMeter& meter)
{
    const TestFolder folder;
    const std::string name = folder.Write("grown.dlg", Description(meter.Size()));
    meter.Compare({
        {"ours",
         [&]
         {
             const lytdlg::Description description(name, TextOf(name), {});
             Discard(lytdlg::Judge(description, lytdlg::SurroundingsOf(folder.Path(), {})).All().data());
         }},
        {"reading", [&] { lytdlg::Description(name, TextOf(name), {}); }},
    });
}

void MeasureFmt(const BenchMeter& meter)
{
    const TestFolder folder;
    const std::string name = folder.Write("grown.dlg", Description(meter.Size()));
    const std::string target = folder.File("copy.dlg");
    meter.Compare({
        {"ours", [&] { Discard(lytdlg::FormattedDescription(name, TextOf(name)).size()); }},
        {"copy", [&] { CopyLines(name, target); }},
    });
}

void MeasurePreview(const BenchMeter& meter)
{
    const TestFolder folder;
    const std::string name = folder.Write("grown.dlg", Description(meter.Size()));
    const std::string target = folder.File("grown.svg");
    meter.Compare({
        {"ours", [&] { Draw(name, target); }},
        {"copy", [&] { CopyLines(name, target); }},
    });
}
