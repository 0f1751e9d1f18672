// Leads to a new placeholder through any catalogue and any description, while a user acts.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/Partners.h"
#include "fuzz/frame/Samples.h"
#include "fuzz/frame/Stage.h"

#include "lyt64.h"

namespace
{
namespace wizard_fuzzer
{

constexpr int mostBytes = 70'000;

// The lines up to an empty one.
std::string TakeCatalogue(InputText& lines)
{
    std::string catalogue;
    for (std::string line = lines.Line(); !line.empty(); line = lines.Line())
        catalogue += line + "\n";
    return catalogue;
}

void Run(const std::string& input)
{
    const Stage stage;
    InputText lines(input);
    const Room buffer(lines.Number(-1, mostBytes));
    const std::string acts = lines.Line();
    SetCatalogue(TakeCatalogue(lines));
    for (const char* name : {"lytWzGrp.dlg", "lytWzPhr.dlg", "lytWzSym.dlg"})
        stage.PutDescription(name, lines.Rest());
    // What is left of a queue would come to the next input.
    CallAsUserActs(acts,
                   [&]
                   {
                       while (lytWizard(buffer.Data(), buffer.Size()) == 1)
                           continue;
                   });
}

std::vector<std::string> Seeds()
{
    std::vector<std::string> seeds;
    for (const char* type : {"1", "2", "3"})
    {
        const std::string catalogue = std::string("01Building\tb\n1") + type + "Roof ## tiles\tb.r\n23Area\tb.r.a\n\n";
        const std::vector<std::string> inputs =
            SampleDescriptionsAfter("200\nf2 kh kD o l0,0 b2 b3 b4 b5 b6 o\n" + catalogue);
        seeds.insert(seeds.end(), inputs.begin(), inputs.end());
    }
    return seeds;
}

} // namespace wizard_fuzzer
} // namespace

const Fuzzer wizardFuzzer = {"wizard", "size; acts; the catalogue and an empty line; the description",
                             wizard_fuzzer::Run, wizard_fuzzer::Seeds};
