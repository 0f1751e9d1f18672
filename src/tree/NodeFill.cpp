#include "tree/NodeFill.h"

#include "base/PartnerLibrary.h"
#include "tree/ClytAncestors.h"
#include "tree/ClytChildCursor.h"

#include <algorithm>
#include <cstring>

namespace
{

struct EntryType
{
    int number;
    char letter;
    int image;
};

constexpr EntryType entryTypes[] = {
    {LYT_TREE_HEADING, 'H', 0},
    {LYT_TREE_GROUP, 'G', 1},
    {LYT_TREE_SYMBOL, 'S', 2},
};

// An unknown number takes over the type of the entry before: sources leave it out for entries
// that follow one of the same type.
const EntryType& TypeOf(int number, const EntryType& before)
{
    const auto* const type = std::ranges::find(entryTypes, number, &EntryType::number);
    return type != std::end(entryTypes) ? *type : before;
}

int ImageOf(char letter)
{
    const auto* const type = std::ranges::find(entryTypes, letter, &EntryType::letter);
    return type != std::end(entryTypes) ? type->image : 0;
}

using Field = char[LYT_TREE_TEXT_SIZE];

// A field that its source did not end is not a text.
void CopyField(Field& target, const Field& field)
{
    const void* end = std::memchr(field, '\0', sizeof field);
    if (end != nullptr)
        std::memcpy(target, field, static_cast<size_t>(static_cast<const char*>(end) - field));
}

std::unique_ptr<ClytNode> NodeOf(const lytTreeRecord& record, const EntryType& type)
{
    auto node = std::make_unique<ClytNode>(nullptr, record.nLevel);
    CopyField(node->key, record.szKey);
    CopyField(node->label, record.szLabel);
    node->type = type.letter;
    return node;
}

HTREEITEM Show(const ClytNode& node, HTREEITEM parent, ClytTreeItems& items, int image)
{
    char label[lytShownLabelSize] = {};
    lytExpandLabel(label, node.label);
    return items.InsertItem(parent, label, image);
}

// A source that calls back may have filled the list meanwhile. The items belong to the nodes of the run that ended last.
void Replace(ClytNodeList& nodes, ClytNodeList& run)
{
    if (!nodes.IsEmpty())
        lytChildCursor.Forget();
    nodes.Exchange(run);
}

} // namespace

void lytExpandLabel(char (&target)[lytShownLabelSize], const char* label)
{
    // One pass from the left gives what replacing the first mark again and again would give: blanks make no new marks.
    size_t length = 0;
    const size_t room = sizeof target - 1;
    const auto put = [&](char ch)
    {
        if (length < room)
            target[length++] = ch;
    };
    while (*label != '\0')
    {
        if (label[0] == '#' && label[1] == '#')
        {
            for (int blank = 0; blank < 3; ++blank)
                put(' ');
            label += 2;
        }
        else
            put(*label++);
    }
    target[length] = '\0';
}

void lytFillFromSource(ClytNodeList& nodes, const ClytTreeSource& source, ClytTreeItems* items, char kind)
{
    if (source.start("") == 0)
        return;

    ClytNodeList run;
    ClytAncestors ancestors;
    const EntryType* type = &entryTypes[0];
    for (int count = 0; count < lytLongestRun; ++count)
    {
        lytTreeRecord record = {};
        if (source.next(&record) == 0)
            break;
        type = &TypeOf(record.nType, *type);
        ClytNode& node = run.AddTail(NodeOf(record, *type));
        const HTREEITEM parent = ancestors.lytFindParentItem(node.level);
        ancestors.Add(node.level, &node);

        // Here the number decides, not the type that was taken over: a group by inheritance is shown from the second
        // opening on.
        const bool shown = kind != 'G' || record.nType == LYT_TREE_HEADING || record.nType == LYT_TREE_GROUP;
        if (items != nullptr && shown)
            node.item = Show(node, parent, *items, type->image);
    }
    Replace(nodes, run);
}

void lytFillFromList(ClytNodeList& nodes, ClytTreeItems& items, char kind)
{
    ClytAncestors ancestors;
    for (ClytNode& node : nodes)
    {
        const HTREEITEM parent = ancestors.lytFindParentItem(node.level);
        ancestors.Add(node.level, &node);

        const bool shown = kind != 'G' || node.type == 'G' || node.type == 'H';
        node.item = shown ? Show(node, parent, items, ImageOf(node.type)) : nullptr;
    }
}
