#include "Catalogues.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

namespace
{

using Records = std::vector<lytTreeRecord>;

constexpr int32_t lowest = std::numeric_limits<int32_t>::min();
constexpr int32_t highest = std::numeric_limits<int32_t>::max();
const int32_t levels[] = {0, 1, 2, 3, 7, 100, -1, -100, lowest, highest, highest - 1};
const int32_t kinds[] = {LYT_TREE_HEADING, LYT_TREE_GROUP, LYT_TREE_SYMBOL, 0, 4, -1, lowest, highest};
const std::string texts[] = {"",  "a", "/", "a/b/c", "##", "########", "'", "%s", std::string(99, 'x'), "\xE4\xFF\x01",
                             " ", "|", "G", "roof"};

// Fills the field with the text and NULs, or with what no NUL ends.
void SetText(char (&field)[LYT_TREE_TEXT_SIZE], const std::string& text, bool isEnded)
{
    std::fill(std::begin(field), std::end(field), isEnded ? '\0' : 'z');
    text.copy(field, sizeof field - 1);
}

void SetLevel(Records& records, lytTreeRecord& record, Dice& dice)
{
    record.nLevel = dice.Of(levels);
    if (dice.Is(8))
        records.front().nLevel = record.nLevel;
}

void SetKind(Records& /*records*/, lytTreeRecord& record, Dice& dice)
{
    record.nType = dice.Of(kinds);
}

void SetLabel(Records& /*records*/, lytTreeRecord& record, Dice& dice)
{
    SetText(record.szLabel, dice.Of(texts), !dice.Is(6));
}

void SetKey(Records& /*records*/, lytTreeRecord& record, Dice& dice)
{
    SetText(record.szKey, dice.Of(texts), !dice.Is(6));
}

void SetBytes(Records& /*records*/, lytTreeRecord& record, Dice& dice)
{
    std::array<unsigned char, sizeof record> bytes = {};
    std::memcpy(bytes.data(), &record, sizeof record);
    for (size_t count = 1 + dice.Below(20); count > 0; --count)
        bytes[dice.Below(bytes.size())] = static_cast<unsigned char>(dice.Below(256));
    std::memcpy(&record, bytes.data(), sizeof record);
}

void Swap(Records& records, lytTreeRecord& record, Dice& dice)
{
    std::swap(record, records[dice.Below(records.size())]);
}

void Repeat(Records& records, lytTreeRecord& record, Dice& dice)
{
    const lytTreeRecord repeated = record;
    records.insert(records.end(), 1 + dice.Below(3), repeated);
}

} // namespace

std::vector<lytTreeRecord> WellFormedCatalogue(Dice& dice)
{
    Records records(1 + dice.Below(60));
    int32_t level = 0;
    for (size_t index = 0; index < records.size(); ++index)
    {
        lytTreeRecord& record = records[index];
        level = static_cast<int32_t>(dice.Below(static_cast<size_t>(std::min(level + 2, 5))));
        record.nLevel = level;
        record.nType = kinds[dice.Below(3)];
        SetText(record.szLabel, "Entry##" + std::to_string(index), true);
        SetText(record.szKey, "key" + std::to_string(index), true);
    }
    return records;
}

std::vector<lytTreeRecord> MutatedCatalogue(Dice& dice)
{
    using Change = void (*)(Records&, lytTreeRecord&, Dice&);
    static constexpr auto changes =
        std::to_array<Change>({SetLevel, SetLevel, SetKind, SetLabel, SetKey, SetBytes, Swap, Repeat});
    if (dice.Is(50))
        return {};
    Records records = WellFormedCatalogue(dice);
    for (size_t count = 1 + dice.Below(12); count > 0; --count)
        dice.Of(changes)(records, records[dice.Below(records.size())], dice);
    return records;
}
