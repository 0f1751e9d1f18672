#include "lytdlg/trip/TripItem.h"

#include "dialog/ClytDialog.h"
#include "dialog/FormatReader.h"
#include "lytdlg/try/ControlState.h"
#include "model/ClytWords.h"

#include <algorithm>

namespace lytdlg
{

TripItem TakenItem(const ClytOutputItem& item)
{
    constexpr const char* blanks = "   ";
    TripItem taken{item.text.GetString(), item.span, item.text.GetString(), item.action.GetString()};
    taken.isControl = item.control != nullptr && !item.control->GetName().IsEmpty();
    if (!taken.isControl)
        return taken;
    if (item.action.IsEmpty())
    {
        taken.value = ValueOf(*item.control).value_or("");
        return taken;
    }
    CString values;
    item.control->GetAllValues(values, lytMeans<ClytFillAction::Concat>(item.action) ? CString(blanks) : item.action);
    taken.value = values.GetString();
    return taken;
}

std::string PlacedItems(const CString& format, std::vector<TripItem>& items)
{
    const bool hasItems = format.Find('%') >= 0;
    std::string text = hasItems ? "" : format.GetString();
    size_t next = 0;
    ClytFormatReader reader(format);
    while (hasItems && !reader.IsAtEnd())
    {
        const ClytFormatPiece piece = reader.Take();
        if (piece.kind == ClytFormatPiece::Kind::Item && next < items.size())
        {
            TripItem& item = items[next++];
            item.limit = piece.limit;
            item.begin = text.size();
            text += item.value.substr(0, static_cast<size_t>(piece.limit));
            item.end = text.size();
            continue;
        }
        const std::string put(format.GetString() + piece.start, static_cast<size_t>(piece.length));
        if (piece.kind == ClytFormatPiece::Kind::Text && !(put == "\\" && reader.IsBeforeQuote()))
            text += put;
    }
    items.resize(std::min(items.size(), next));
    if (!hasItems)
        return text;
    CString expanded(text.c_str());
    ClytDialog::ExpandEscapes(expanded);
    return expanded.GetString();
}

} // namespace lytdlg
