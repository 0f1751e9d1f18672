#include "fuzz/frame/Fuzzer.h"

#include <algorithm>

namespace
{

constexpr const Fuzzer* fuzzers[] = {
    &checkFuzzer,    &descriptionFuzzer, &fmtFuzzer,  &formatFuzzer, &groupsFuzzer, &profileFuzzer, &lspFuzzer,
    &propertyFuzzer, &reportFuzzer,      &scanFuzzer, &sizesFuzzer,  &treeFuzzer,   &wizardFuzzer,
};

} // namespace

std::span<const Fuzzer* const> Fuzzers()
{
    return fuzzers;
}

const Fuzzer* FindFuzzer(const std::string& name)
{
    const auto* const found = std::ranges::find_if(fuzzers, [&](const Fuzzer* fuzzer) { return name == fuzzer->name; });
    return found != std::end(fuzzers) ? *found : nullptr;
}
