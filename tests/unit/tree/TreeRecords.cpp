#include "unit/tree/TreeRecords.h"

#include <cstring>

namespace
{

// Items are places in here: a control hands out addresses too.
char places[100];

} // namespace

RecordedSource* RecordedSource::s_current = nullptr;

lytTreeRecord Record(int level, int type, const std::string& label, const std::string& key)
{
    lytTreeRecord record = {};
    record.nLevel = level;
    record.nType = type;
    std::memcpy(record.szLabel, label.data(), label.size());
    std::memcpy(record.szKey, key.data(), key.size());
    return record;
}

RecordedSource::RecordedSource(std::vector<lytTreeRecord> records) : m_records(std::move(records))
{
    s_current = this;
}

RecordedSource::~RecordedSource()
{
    s_current = nullptr;
}

ClytTreeSource RecordedSource::Source() const
{
    return {&Start, &Next};
}

void RecordedSource::Interrupt(size_t record, std::function<void()> act)
{
    m_interrupted = record;
    m_act = std::move(act);
}

ClytTreeSource RecordedSource::Refusing()
{
    return {+[](const char*) { return 0; }, +[](lytTreeRecord*) { return 1; }};
}

ClytTreeSource RecordedSource::Endless()
{
    return {+[](const char*) { return 1; }, +[](lytTreeRecord*) { return 1; }};
}

int32_t RecordedSource::Start(const char* selection)
{
    s_current->selections.emplace_back(selection);
    s_current->m_next = 0;
    return 1;
}

int32_t RecordedSource::Next(lytTreeRecord* record)
{
    if (s_current->m_next == s_current->m_records.size())
        return 0;
    *record = s_current->m_records[s_current->m_next++];
    if (s_current->m_next == s_current->m_interrupted)
        s_current->m_act();
    return 1;
}

HTREEITEM RecordedItems::InsertItem(HTREEITEM parent, const char* text, int image)
{
    inserted.push_back(std::to_string(Number(parent)) + ": " + text + " [" + std::to_string(image) + "]");
    return Item(static_cast<int>(inserted.size()));
}

void RecordedItems::ExpandItem(HTREEITEM item)
{
    expanded.push_back(Number(item));
}

HTREEITEM RecordedItems::Item(int number)
{
    return number == 0 ? nullptr : reinterpret_cast<HTREEITEM>(places + number);
}

int RecordedItems::Number(HTREEITEM item)
{
    return item == nullptr ? 0 : static_cast<int>(reinterpret_cast<char*>(item) - places);
}
