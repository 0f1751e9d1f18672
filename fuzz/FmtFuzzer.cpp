// The input is a whole description: formatted twice it changes no more, and formatting changes nothing that is read of it.
#include "support/FormattingProof.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string breach = BreachOfFormatting({reinterpret_cast<const char*>(data), size});
    if (!breach.empty())
    {
        std::fprintf(stderr, "%s\n", breach.c_str());
        std::abort();
    }
    return 0;
}
