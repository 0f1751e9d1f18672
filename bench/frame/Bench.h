// What every bench is made of: pieces of work, each done in several sizes and in turn with its rivals. A program of benches
// prints one line of JSON for each work and size, which `./measure` reads.
#pragma once

#include <functional>
#include <string>
#include <vector>

// One of the things that are done in turn: our own work, the same work by hand, or a part of either.
struct BenchSeries
{
    std::string name;
    std::function<void()> work;
    // What each run of the work needs; its time does not count.
    std::function<void()> before = {};
};

// Times series in turn, so that anything else the machine does affects all of them alike.
class BenchMeter
{
public:
    BenchMeter(std::string workName, int workSize, double seconds)
        : m_work(std::move(workName)), m_size(workSize), m_seconds(seconds)
    {
    }

    int Size() const { return m_size; }
    // Runs rounds for the seconds of this meter and prints the time of each series in each of them.
    void Compare(const std::vector<BenchSeries>& series) const;
    // Prints a figure that is no time, such as a size in KB.
    void Report(double figure) const;

private:
    std::string m_work;
    int m_size;
    double m_seconds;
};

struct BenchWork
{
    std::string name;
    std::vector<int> sizes;
    std::function<void(const BenchMeter& meter)> measure;
};

// The main function of a program with these works.
int RunBenches(int argc, char** argv, const std::vector<BenchWork>& works);
