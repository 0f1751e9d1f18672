// A data source for tests without a library, and a tree control without a window.
#pragma once

#include "tree/NodeFill.h"

#include <functional>
#include <string>
#include <vector>

// A record with texts; both must fit.
lytTreeRecord Record(int level, int type, const std::string& label, const std::string& key);

// The node at a place of the list, counted from 0.
inline ClytNode& NodeAt(const ClytNodeList& nodes, int index)
{
    return *nodes.GetAt(nodes.FindIndex(index));
}

// Serves the records to whoever reads `Source()` while it lives; one at a time.
class RecordedSource
{
public:
    explicit RecordedSource(std::vector<lytTreeRecord> records);
    RecordedSource(const RecordedSource&) = delete;
    RecordedSource& operator=(const RecordedSource&) = delete;
    ~RecordedSource();

    ClytTreeSource Source() const;
    // Acts from inside the next call that asks for the record of this number, counted from 1.
    void Interrupt(size_t record, std::function<void()> act);
    // A source that says no to the start, and one that never says there is no more.
    static ClytTreeSource Refusing();
    static ClytTreeSource Endless();

    std::vector<std::string> selections; // what the start calls were given

private:
    static int32_t Start(const char* selection);
    static int32_t Next(lytTreeRecord* record);

    std::vector<lytTreeRecord> m_records;
    size_t m_next = 0;
    size_t m_interrupted = 0;
    std::function<void()> m_act;
    static RecordedSource* s_current;
};

// Notes what is asked of it, as lines of text. Items are numbered from 1.
class RecordedItems : public ClytTreeItems
{
public:
    HTREEITEM InsertItem(HTREEITEM parent, const char* text, int image) override;
    void ExpandItem(HTREEITEM item) override;
    HTREEITEM GetRootItem() const override { return Item(1); }

    static HTREEITEM Item(int number);
    static int Number(HTREEITEM item);

    // `parent: label [image]` for each item, and the numbers of the items expanded.
    std::vector<std::string> inserted;
    std::vector<int> expanded;
};
