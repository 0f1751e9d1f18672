// What libFuzzer calls: `fuzzers --fuzzer=NAME` and its own options.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/Partners.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace
{

const Fuzzer* chosen = nullptr;

}

// libFuzzer passes over options that begin with two dashes.
extern "C" int LLVMFuzzerInitialize(int* count, char*** words)
{
    constexpr std::string_view option = "--fuzzer=";
    for (int index = 1; index < *count; ++index)
    {
        const std::string_view word = (*words)[index];
        if (word.starts_with(option))
            chosen = FindFuzzer(std::string(word.substr(option.size())));
    }
    if (chosen != nullptr)
    {
        InstallPartners();
        return 0;
    }
    std::fputs("fuzzers: name a fuzzer with --fuzzer=NAME; ./fuzz-run --list lists them\n", stderr);
    std::exit(2);
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    chosen->run({reinterpret_cast<const char*>(data), size});
    return 0;
}
