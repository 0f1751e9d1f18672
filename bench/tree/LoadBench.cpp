// Loading a catalogue, finding all parents and searching it: time for each record must not grow with their number, in any
// shape.
#include "tree/NodeFill.h"
#include "tree/NodeSearch.h"

#include <benchmark/benchmark.h>

#include <cstdio>

namespace
{

using Level = int (*)(int number);

// Three levels, as a real catalogue has them.
int Ordinary(int number)
{
    return number % 100 == 0 ? 0 : number % 10 == 0 ? 1 : 2;
}

// All entries are children of the first: a walk back from each would be as long as the list.
int Siblings(int number)
{
    return number == 0 ? 0 : 1;
}

// Each entry is the child of the one before.
int OneBranch(int number)
{
    return number;
}

// Deep branches that fall back to the root.
int Comb(int number)
{
    return number % 1000;
}

// Each entry stands nearer the root than the one before, so that none has a parent.
int Falling(int number)
{
    return -number;
}

// What the source functions serve.
Level servedLevel = nullptr;
int servedCount = 0;
int served = 0;

int32_t Start(const char* /*selection*/)
{
    served = 0;
    return 1;
}

int32_t Next(lytTreeRecord* record)
{
    if (served == servedCount)
        return 0;
    record->nLevel = servedLevel(served);
    record->nType = LYT_TREE_HEADING;
    std::snprintf(record->szLabel, sizeof record->szLabel, "Entry##%d", served);
    std::snprintf(record->szKey, sizeof record->szKey, "key.%d", served);
    ++served;
    return 1;
}

// Takes every item without keeping it, so that only the work around the control is measured.
class NoControl : public ClytTreeItems
{
public:
    HTREEITEM InsertItem(HTREEITEM parent, const char* text, int /*image*/) override
    {
        benchmark::DoNotOptimize(parent);
        benchmark::DoNotOptimize(text);
        return reinterpret_cast<HTREEITEM>(&m_item);
    }
    void ExpandItem(HTREEITEM /*item*/) override {}
    HTREEITEM GetRootItem() const override { return nullptr; }

private:
    int m_item = 0;
};

void Serve(benchmark::State& state, Level level)
{
    servedLevel = level;
    servedCount = static_cast<int>(state.range(0));
}

void CountRecords(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void FillFromSource(benchmark::State& state, Level level)
{
    Serve(state, level);
    NoControl control;
    while (state.KeepRunning())
    {
        ClytNodeList nodes;
        lytFillFromSource(nodes, {Start, Next}, &control, 'S');
        benchmark::DoNotOptimize(nodes.GetTail());
    }
    CountRecords(state);
}

void FillFromList(benchmark::State& state, Level level)
{
    Serve(state, level);
    NoControl control;
    ClytNodeList nodes;
    lytFillFromSource(nodes, {Start, Next}, nullptr, 'S');
    while (state.KeepRunning())
        lytFillFromList(nodes, control, 'S');
    CountRecords(state);
}

// Every entry matches, and no climb finds a symbol.
void SearchInVain(benchmark::State& state, Level level)
{
    Serve(state, level);
    ClytNodeList nodes;
    lytFillFromSource(nodes, {Start, Next}, nullptr, 'S');
    while (state.KeepRunning())
        benchmark::DoNotOptimize(lytFindNode(nodes, 'S', "key."));
    CountRecords(state);
}

const struct
{
    const char* name;
    Level level;
} shapes[] = {
    {"ordinary", Ordinary}, {"siblings", Siblings}, {"one branch", OneBranch}, {"comb", Comb}, {"falling", Falling},
};

const struct
{
    const char* name;
    void (*run)(benchmark::State& state, Level level);
} tasks[] = {
    {"fill from source", FillFromSource},
    {"fill from list", FillFromList},
    {"search in vain", SearchInVain},
};

int RegisterAll()
{
    for (const auto& task : tasks)
    {
        for (const auto& shape : shapes)
            benchmark::RegisterBenchmark((std::string(task.name) + ", " + shape.name).c_str(), task.run, shape.level)
                ->RangeMultiplier(10)
                ->Range(1000, 100'000)
                ->Unit(benchmark::kMicrosecond)
                ->Complexity(benchmark::oN);
    }
    return 0;
}

// Only its making counts.
[[maybe_unused]] const int registered = RegisterAll();

} // namespace
