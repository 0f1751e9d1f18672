// Each case of the files LYT_CASES is a test.
#include "CaseRun.h"

#include "support/Leaks.h"

namespace
{

class EachCase : public CaseRun, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(EachCase, ComesOutAsWritten)
{
    if (GetParam().hasRounds)
        ExpectNoGrowth([this] { Run(GetParam()); });
    else
        Run(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, EachCase, testing::ValuesIn(CasesOf(LYT_CASES)), NameOfCase);
