#include "support/Mistakes.h"

#include <climits>
#include <memory>
#include <new>
#include <vector>

namespace
{

// The compiler sees neither the sizes nor the numbers, so that it can neither warn nor leave anything out.
volatile size_t size = 32;
volatile int largest = INT_MAX;
volatile float outOfRange = 3e9F;
volatile int result;

// The address of a block that is released already.
char* ReleasedBlock()
{
    const auto owner = std::make_unique<char>();
    char* volatile block = owner.get();
    return block;
}

} // namespace

namespace mistakes
{

void WritePastABlock()
{
    const auto block = std::make_unique<char[]>(size);
    volatile char* bytes = block.get();
    bytes[size] = 1;
}

void ReadAReleasedBlock()
{
    result = *ReleasedBlock();
}

void ReleaseABlockTwice()
{
    ::operator delete(ReleasedBlock());
}

void OverflowASignedInteger()
{
    result = largest + 1;
}

void IndexPastTheEndOfAVector()
{
    const std::vector<int> numbers(size);
    result = numbers[size];
}

void CutANumberThatNoIntegerHolds()
{
    result = static_cast<int>(outOfRange);
}

} // namespace mistakes
