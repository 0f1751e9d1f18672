// Formatted twice a description changes no more, and formatting changes nothing that is read of it.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/Samples.h"
#include "unit/lytdlg/FormattingProof.h"

#include <cstdio>
#include <cstdlib>

namespace
{
namespace fmt_fuzzer
{

void Run(const std::string& input)
{
    const std::string breach = BreachOfFormatting(input);
    if (breach.empty())
        return;
    std::fprintf(stderr, "%s\n", breach.c_str());
    std::abort();
}

} // namespace fmt_fuzzer
} // namespace

const Fuzzer fmtFuzzer = {"fmt", "a description, formatted by lytdlg", fmt_fuzzer::Run, SampleDescriptions};
