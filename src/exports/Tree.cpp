// The exports of the catalogue.
#include "lyt64.h"

#include "exports/ExportFrame.h"
#include "tree/ClytChildCursor.h"
#include "tree/ClytTreeDialog.h"
#include "tree/NodeFill.h"
#include "tree/NodeSearch.h"

namespace
{

// The key of the symbol that the text begins; false without one. Without a catalogue kept from a dialog, one is read for
// this search alone, so that the next dialog still reads its own, with its control.
bool FindSymbol(const CString& text, CString& key)
{
    ClytNodeList read;
    ClytTreeSource source;
    if (lytSymbolNodes.IsEmpty() && lytGetTreeSource('S', source))
        lytFillFromSource(read, source, nullptr, 'S');

    const ClytNode* node = lytFindNode(lytSymbolNodes.IsEmpty() ? read : lytSymbolNodes, 'S', text);
    if (node == nullptr)
        return false;
    key = node->key;
    return true;
}

} // namespace

// Exported under the name lytOpenTreeViewPara as well.
int __stdcall lytOpenTreeView(const char* request, char* target, int size)
{
    LYT_EXPORT_FRAME(0);
    if (!IsUsable(target, size))
        return 0;
    const std::optional<CString> choice = lytBrowse(request);
    if (!choice)
        return 0;
    CopyTextMarkingEnd(target, size, *choice);
    return 1;
}

int __stdcall lytGetSymbolfromTree(const char* text, char* target, int size)
{
    LYT_EXPORT_FRAME(0);
    const CString wanted(text);
    CString key;
    if (!IsUsable(target, size) || wanted.IsEmpty() || !FindSymbol(wanted, key))
        return 0;
    CopyText(target, size, key);
    return 1;
}

int __stdcall lytTreeStartChildNode(const char* key)
{
    LYT_EXPORT_FRAME(0);
    return lytChildCursor.Start(lytSymbolNodes, CString(key)) ? 1 : 0;
}

int __stdcall lytTreeReadChildNode(char* text, int textSize, char* path, int pathSize)
{
    LYT_EXPORT_FRAME(0);
    CString label;
    CString keyAndLabel;
    if (!IsUsable(text, textSize) || !IsUsable(path, pathSize) ||
        !lytChildCursor.Read(lytSymbolNodes, label, keyAndLabel))
        return 0;
    CopyText(text, textSize, label);
    CopyText(path, pathSize, keyAndLabel);
    return 1;
}
