// An item of an output rule, and where it is in the text.
#pragma once

#include "model/ClytDialogOutput.h"

#include <string>
#include <vector>

namespace lytdlg
{

struct TripItem
{
    std::string name;
    ClytSpan span;
    std::string value; // the whole of it
    std::string separators;
    bool isControl = false;
    size_t begin = 0;
    size_t end = 0;
    int limit = 0; // how many characters of it the format puts at most

    bool IsCut() const { return end - begin < value.size(); }
};

// With the value that the dialog would put there.
TripItem TakenItem(const ClytOutputItem& item);
// The text of the format with the items in it, which get their places. Those that it does not take are left out.
std::string PlacedItems(const CString& format, std::vector<TripItem>& items);

} // namespace lytdlg
