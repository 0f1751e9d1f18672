#include "frame/Bench.h"

#include "frame/BenchClock.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace
{

constexpr const char* help =
    "usage: bench [--list] [--seconds S] [WORK...]\n"
    "\n"
    "Does each piece of work in turn with its rivals, and prints for each size a line of JSON with the\n"
    "nanoseconds that each took in each round. Without a name, all works. `./measure` reads the lines.\n"
    "\n"
    "  --list        print the names of the works instead\n"
    "  --seconds S   how long to repeat a work, all sizes together (default 2)\n";

constexpr int fewestRounds = 3;
constexpr int mostRounds = 201;
// Work that is shorter is done several times for one measurement, so that the clock's own steps do not show.
constexpr double shortestMeasurement = 1e6;
constexpr double mostRuns = 1e6;

double WallSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The time of one run, out of several in a row.
double TimeOf(const BenchSeries& series, int runs)
{
    if (series.before)
        series.before();
    const double start = BenchNanoseconds();
    for (int run = 0; run < runs; ++run)
        series.work();
    return (BenchNanoseconds() - start) / runs;
}

// What has to be prepared is run once for each measurement. The first run of all is not looked at.
int RunsOf(const BenchSeries& series)
{
    TimeOf(series, 1);
    if (series.before)
        return 1;
    return static_cast<int>(std::clamp(shortestMeasurement / std::max(TimeOf(series, 1), 1.0), 1.0, mostRuns));
}

void Print(const std::string& name, const std::vector<double>& times)
{
    std::printf("\"%s\": [", name.c_str());
    for (size_t index = 0; index < times.size(); ++index)
        std::printf("%s%.1f", index != 0 ? ", " : "", times[index]);
    std::printf("]");
}

// The works that the command line names; all when it names none.
std::vector<BenchWork> Chosen(const std::vector<BenchWork>& works, const std::vector<std::string>& names)
{
    if (names.empty())
        return works;
    std::vector<BenchWork> chosen;
    for (const std::string& name : names)
    {
        const auto work = std::ranges::find(works, name, &BenchWork::name);
        if (work == works.end())
        {
            std::fprintf(stderr, "bench: there is no work \"%s\"; see --list\n", name.c_str());
            std::exit(2);
        }
        chosen.push_back(*work);
    }
    return chosen;
}

} // namespace

void BenchMeter::Compare(const std::vector<BenchSeries>& series) const
{
    std::vector<int> runs;
    for (const BenchSeries& one : series)
        runs.push_back(RunsOf(one));

    std::vector<std::vector<double>> times(series.size());
    const double end = WallSeconds() + m_seconds;
    for (int round = 0; round < fewestRounds || (round < mostRounds && WallSeconds() < end); ++round)
    {
        for (size_t index = 0; index < series.size(); ++index)
            times[index].push_back(TimeOf(series[index], runs[index]));
    }

    std::printf(R"({"work": "%s", "size": %d, "series": {)", m_work.c_str(), m_size);
    for (size_t index = 0; index < series.size(); ++index)
    {
        std::printf("%s", index != 0 ? ", " : "");
        Print(series[index].name, times[index]);
    }
    std::printf("}}\n");
    std::fflush(stdout);
}

void BenchMeter::Report(double figure) const
{
    std::printf(R"({"work": "%s", "size": %d, "series": {"ours": [%.1f]}})"
                "\n",
                m_work.c_str(), m_size, figure);
    std::fflush(stdout);
}

int RunBenches(int argc, char** argv, const std::vector<BenchWork>& works)
{
    std::vector<std::string> names;
    double seconds = 2;
    for (int index = 1; index < argc; ++index)
    {
        const std::string word = argv[index];
        if (word == "--help")
        {
            std::printf("%s", help);
            return 0;
        }
        if (word == "--list")
        {
            for (const BenchWork& work : works)
                std::printf("%s\n", work.name.c_str());
            return 0;
        }
        if (word == "--seconds" && index + 1 < argc)
            seconds = std::atof(argv[++index]);
        else
            names.push_back(word);
    }
    for (const BenchWork& work : Chosen(works, names))
    {
        for (const int size : work.sizes)
            work.measure(BenchMeter(work.name, size, seconds / static_cast<double>(work.sizes.size())));
    }
    return 0;
}
