// Runs the registered benchmarks and keeps the median of each, for tables of ratios.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

class Medians : public benchmark::BenchmarkReporter
{
public:
    // Several repetitions of each benchmark; the command line may choose benchmarks and repetitions.
    void Measure(int argc, char** argv, const char* help);

    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    // Processor nanoseconds of one iteration; 0 for a benchmark that was not run.
    double Of(const std::string& name) const;

private:
    std::map<std::string, double> m_medians;
};

// The machine, its processor and how many there are, in one line.
std::string MachineName();
