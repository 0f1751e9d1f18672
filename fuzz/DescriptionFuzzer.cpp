// Opens a description, and uses it.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/Samples.h"
#include "fuzz/frame/UsedForm.h"

namespace
{
namespace description_fuzzer
{

void Run(const std::string& input)
{
    UseForm(input, "1,a(b;c)[d]=\"e;f\",g");
}

} // namespace description_fuzzer
} // namespace

const Fuzzer descriptionFuzzer = {"description", "a description, opened and used", description_fuzzer::Run,
                                  SampleDescriptions};
