// Loading a catalogue, finding all parents and searching it: time for each record must not grow with their number, in any
// shape.
#include "native/Works.h"

#include "frame/Discard.h"
#include "tree/NodeFill.h"
#include "tree/NodeSearch.h"

#include <cstdio>
#include <cstring>
#include <list>

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

// Each entry is nearer the root than the one before, so that none has a parent.
int Falling(int number)
{
    return -number;
}

constexpr struct
{
    const char* name;
    Level level;
} shapes[] = {
    {"ours", Ordinary}, {"siblings", Siblings}, {"one branch", OneBranch}, {"comb", Comb}, {"falling", Falling},
};

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
        Discard(parent);
        Discard(std::strlen(text));
        return reinterpret_cast<HTREEITEM>(&m_item);
    }
    void ExpandItem(HTREEITEM /*item*/) override {}
    HTREEITEM GetRootItem() const override { return nullptr; }

private:
    int m_item = 0;
};

void Read(ClytNodeList& nodes, Level level, int count, ClytTreeItems* items)
{
    servedLevel = level;
    servedCount = count;
    lytFillFromSource(nodes, {Start, Next}, items, 'S');
}

// The same records kept one by one with nothing else, which shows what the memory itself costs as they become many.
using PlainRecords = std::list<lytTreeRecord>;

PlainRecords ReadPlainly(int count)
{
    servedLevel = Ordinary;
    servedCount = count;
    PlainRecords records;
    lytTreeRecord record = {};
    Start("");
    while (Next(&record) != 0)
        records.push_back(record);
    return records;
}

// `act` is done with the catalogue of each shape in turn, and `plainAct` with the plain records.
template <class Act, class PlainAct>
void MeasureShapes(const BenchMeter& meter, Act act, PlainAct plainAct)
{
    const PlainRecords records = ReadPlainly(meter.Size());
    std::vector<ClytNodeList> catalogues(std::size(shapes));
    std::vector<BenchSeries> series;
    for (size_t shape = 0; shape < std::size(shapes); ++shape)
    {
        ClytNodeList& nodes = catalogues[shape];
        const Level level = shapes[shape].level;
        Read(nodes, level, meter.Size(), nullptr);
        series.push_back({shapes[shape].name, [&nodes, level, act] { act(nodes, level); }});
    }
    series.push_back({"plain list", [&] { plainAct(records); }});
    meter.Compare(series);
}

} // namespace

void MeasureTreeFill(const BenchMeter& meter)
{
    NoControl control;
    MeasureShapes(
        meter, [&](ClytNodeList& nodes, Level level) { Read(nodes, level, meter.Size(), &control); },
        [&](const PlainRecords&) { Discard(ReadPlainly(meter.Size()).size()); });
}

void MeasureTreeRefill(const BenchMeter& meter)
{
    NoControl control;
    MeasureShapes(
        meter, [&](ClytNodeList& nodes, Level) { lytFillFromList(nodes, control, 'S'); },
        [&](const PlainRecords& records)
        {
            for (const lytTreeRecord& record : records)
                control.InsertItem(nullptr, record.szLabel, record.nType);
        });
}

// Every entry matches, and no climb finds a symbol.
void MeasureTreeSearch(const BenchMeter& meter)
{
    MeasureShapes(
        meter, [](const ClytNodeList& nodes, Level) { Discard(lytFindNode(nodes, 'S', "key.")); },
        [](const PlainRecords& records)
        {
            for (const lytTreeRecord& record : records)
                Discard(std::strncmp(record.szKey, "key.", 4));
        });
}
