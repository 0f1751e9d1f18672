#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzDescription(data, size);
    return 0;
}
