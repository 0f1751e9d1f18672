// Reading a report line by line: each call names an index, and the walk as a whole stays linear.
#include "environment/ClytEnvironment.h"
#include "sysinfo/frame/Report.h"
#include "sysinfo/frame/ReportLines.h"

#include <benchmark/benchmark.h>

namespace
{

void WalkReport(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    lytEnvironment.lytReportLines.RemoveAll();
    for (int line = 0; line < count; ++line)
        AddReportLine("  a line of the report, as long as most of them are");
    char target[256];
    while (state.KeepRunning())
    {
        for (int index = 0; index < count; ++index)
            benchmark::DoNotOptimize(lytReadReportLine(index, target, sizeof target));
    }
    state.SetComplexityN(count);
}

} // namespace

BENCHMARK(WalkReport)->RangeMultiplier(10)->Range(100, 100000)->Complexity(benchmark::oN);
