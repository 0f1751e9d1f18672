// Each case of the files LYT_CASES is a test.
#include "CaseRun.h"
#include "CaseWords.h"

#include "support/Leaks.h"

namespace
{

class EachCase : public CaseRun, public testing::WithParamInterface<Case>
{
};

std::vector<Case> AllCases()
{
    std::vector<Case> all;
    for (const std::string& file : Split(LYT_CASES, "|"))
    {
        const std::vector<Case> cases = ReadCases(file);
        all.insert(all.end(), cases.begin(), cases.end());
    }
    return all;
}

} // namespace

// GoogleTest prints it where a test fails.
void PrintTo(const Case& one, std::ostream* stream)
{
    *stream << one.name;
}

TEST_P(EachCase, ComesOutAsWritten)
{
    if (GetParam().hasRounds)
        ExpectNoGrowth([this] { Run(GetParam()); });
    else
        Run(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, EachCase, testing::ValuesIn(AllCases()),
                         [](const auto& one) { return one.param.file + "_" + one.param.name; });
