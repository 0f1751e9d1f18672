// Browses any catalogue, while a user acts, and walks through it by the exports.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/Partners.h"
#include "fuzz/frame/Stage.h"

#include "lyt64.h"

namespace
{
namespace tree_fuzzer
{

constexpr int mostBytes = 1'000;

void Run(const std::string& input)
{
    const Stage stage;
    InputText lines(input);
    const std::string request = lines.Line();
    const Room target(lines.Number(-1, mostBytes), 1);
    const Room text(lines.Number(-1, mostBytes));
    const std::string acts = lines.Line();
    const std::string key = lines.Line();
    SetCatalogue(lines.Rest());
    CallAsUserActs(acts,
                   [&]
                   {
                       lytGetSymbolfromTree(key.c_str(), text.Data(), text.Size());
                       lytOpenTreeView(request.c_str(), target.Data(), target.Size());
                       lytOpenTreeView(request.c_str(), target.Data(), target.Size());
                       lytGetSymbolfromTree(key.c_str(), text.Data(), text.Size());
                       lytTreeStartChildNode(key.c_str());
                       while (lytTreeReadChildNode(text.Data(), text.Size(), text.Data(), text.Size()) == 1)
                           continue;
                   });
}

std::vector<std::string> Seeds()
{
    const std::string catalogue = "01Building\tb\n12Roof ## tiles\tb.r\n23Area\tb.r.a\n23Pitch\tb.r.p\n12Walls\tb.w\n"
                                  "<1Lowest\tl\n>3Highest\th\n";
    std::vector<std::string> seeds;
    for (const char* request : {"W", "S", "Sb.r.a", "G", "Gb.w", "H", "P", "Pb", ""})
        seeds.push_back(std::string(request) + "\n100\n20\nf2 kh kD kR kD kL d2,20 c2,37 o x\nb.r.a\n" + catalogue);
    return seeds;
}

} // namespace tree_fuzzer
} // namespace

const Fuzzer treeFuzzer = {"tree", "request; two sizes, a line each; acts; key; the catalogue", tree_fuzzer::Run,
                           tree_fuzzer::Seeds};
