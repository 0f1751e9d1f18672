// Judges a description by every rule, and puts each finding into words.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/Samples.h"
#include "lytdlg/judge/Report.h"

namespace
{
namespace check_fuzzer
{

void Run(const std::string& input)
{
    static const lytdlg::Surroundings surroundings = lytdlg::SurroundingsOf("", {});
    const lytdlg::Description description("fuzz.dlg", input, {});
    const lytdlg::Findings findings = lytdlg::Judge(description, surroundings);
    for (const lytdlg::Finding& finding : findings.All())
        static_cast<void>(lytdlg::TextOf(finding, description, true));
}

} // namespace check_fuzzer
} // namespace

const Fuzzer checkFuzzer = {"check", "a description, judged by lytdlg", check_fuzzer::Run, SampleDescriptions};
