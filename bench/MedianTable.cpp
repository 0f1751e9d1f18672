#include "MedianTable.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <vector>

void Medians::Measure(int argc, char** argv, const char* help)
{
    for (int index = 1; index < argc; ++index)
    {
        if (std::strcmp(argv[index], "--help") == 0)
        {
            std::printf("%s", help);
            std::exit(0);
        }
    }
    std::string repetitions = "--benchmark_repetitions=9";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string shortest = "--benchmark_min_time=0.02";
    std::vector<char*> arguments{argv[0], repetitions.data(), interleaving.data(), shortest.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        std::exit(2);
    benchmark::RunSpecifiedBenchmarks(this);
}

void Medians::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
    {
        if (run.error_occurred)
        {
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            std::exit(1);
        }
        if (run.aggregate_name == "median")
            m_medians[run.run_name.function_name + "/" + run.run_name.args] = run.GetAdjustedCPUTime();
    }
}

double Medians::Of(const std::string& name) const
{
    const auto found = m_medians.find(name);
    return found != m_medians.end() ? found->second : 0.0;
}

std::string MachineName()
{
    std::string host;
    std::getline(std::ifstream("/proc/sys/kernel/hostname"), host);
    std::string model = "unknown processor";
    int processors = 0;
    std::ifstream information("/proc/cpuinfo");
    for (std::string line; std::getline(information, line);)
    {
        if (line.rfind("model name", 0) != 0)
            continue;
        model = line.substr(line.find(':') + 2);
        ++processors;
    }
    return host + ", " + std::to_string(processors) + " x " + model;
}
