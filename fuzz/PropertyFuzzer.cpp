// Shows the properties of a placeholder by any description, while a user acts.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/Samples.h"
#include "fuzz/frame/Stage.h"

#include "lyt64.h"

namespace
{
namespace property_fuzzer
{

constexpr int mostBytes = 70'000;

// Symbols, phrases, and the kinds of groups.
void Show(const Stage& stage, char kind, const std::string& key, const std::string& description, const Room& first,
          const Room& second)
{
    if (kind == 's' || kind == 'p')
    {
        stage.PutDescription(kind == 's' ? "lytInSym.dlg" : "lytInPhr.dlg", description);
        const auto show = kind == 's' ? lytSymbolPropertyDialog : lytPhrasePropertyDialog;
        show(key.c_str(), second.Data(), second.Size());
        return;
    }
    const int number = kind - '0';
    stage.PutDescription(number == 0 ? "lytCdGrp.dlg" : "lytRpGrp.dlg", description);
    lytGroupPropertyDialog(number, key.c_str(), first.Data(), first.Size(), second.Data(), second.Size());
}

void Run(const std::string& input)
{
    const Stage stage;
    InputText lines(input);
    const std::string kind = lines.Line();
    const std::string define = lines.Line();
    const std::string key = lines.Line();
    const std::string acts = lines.Line();
    const Room first(lines.Number(-1, mostBytes));
    const Room second(lines.Number(-1, mostBytes), 1);
    if (!define.empty())
        lytSetDialogDefine(define.c_str());
    CallAsUserActs(acts, [&] { Show(stage, kind.empty() ? 's' : kind[0], key, lines.Rest(), first, second); });
}

std::vector<std::string> Seeds()
{
    std::vector<std::string> seeds;
    for (const char* lines :
         {"s\n\nS1:area(2,m2)=\"n. a.\"\nf1 t1,text kt kr\n100\n100\n",
          "p\nX\nP1{roof}see plan[a|b]\nc2 c3 o x\n100\n10\n", "0\n\nxBNGkk01(area>=20)\ns3,1 d3,20 wq aT\n100\n20\n",
          "1\n\nxxxxxABC(Findings;R;roofing;Team;101 Hall|102 Kitchen)\np1 p2 p3 kD o\n200\n9\n",
          "2\nX,Y\n\nc9 d9 s9,0 ke o\n30\n8\n",
          "1\n\n(a;R;roofing;;101 Hall)\nl0,0 b6 l2,0 l1,0 b1 b2 b3 b4 b5 b6 b7 b8 b9 b: b; b< b= b>\n200\n9\n"})
    {
        const std::vector<std::string> inputs = SampleDescriptionsAfter(lines);
        seeds.insert(seeds.end(), inputs.begin(), inputs.end());
    }
    return seeds;
}

} // namespace property_fuzzer
} // namespace

const Fuzzer propertyFuzzer = {"property",
                               "s, p or a group's kind; defines; key; acts; two sizes, a line each; the description",
                               property_fuzzer::Run, property_fuzzer::Seeds};
