/* The smallest catalogue: rooms of a house, as the symbol tree. It has no functions for the para tree, which is empty. */
#include "lytsrc.h"

static const lytTreeRecord records[] = {
    {.nLevel = 0, .nType = LYT_TREE_HEADING, .szLabel = "Ground floor", .szKey = "ground"},
    {.nLevel = 1, .nType = LYT_TREE_SYMBOL, .szLabel = "Hall", .szKey = "room.hall"},
    {.nLevel = 1, .nType = LYT_TREE_SYMBOL, .szLabel = "Kitchen", .szKey = "room.kitchen"},
    {.nLevel = 0, .nType = LYT_TREE_HEADING, .szLabel = "Upper floor", .szKey = "upper"},
    {.nLevel = 1, .nType = LYT_TREE_SYMBOL, .szLabel = "Bedroom", .szKey = "room.bedroom"},
};
static size_t next;

int32_t lytTreeStart(const char* selection)
{
    (void)selection;
    next = 0;
    return 1;
}

int32_t lytTreeNext(lytTreeRecord* record)
{
    if (next == sizeof records / sizeof records[0])
        return 0;
    *record = records[next++];
    return 1;
}
