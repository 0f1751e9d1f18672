#include "lytdlg/trip/LibraryMarks.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// The rules that compose what the library of a list is handed.
std::vector<const ClytDialogOutput*> HandedRules(const Description& description, const std::string& list)
{
    constexpr size_t groupWord = 3;
    const ValueStatement* source = LastStatementOf(description, list, Role::Source);
    for (const OutputGroup& group : description.outputs)
    {
        if (source != nullptr && source->values.size() > groupWord && group.name == source->values[groupWord])
            return Records(group.rules);
    }
    return {};
}

bool IsHanded(const std::vector<const ClytDialogOutput*>& rules, const std::string& name)
{
    const auto isItem = [&](const ClytOutputItem& item) { return name == item.text.GetString(); };
    return std::ranges::any_of(rules,
                               [&](const ClytDialogOutput* rule) { return std::ranges::any_of(rule->items, isItem); });
}

auto FindFill(const TripCut& cut, const std::string& list)
{
    return std::ranges::find_if(cut.fills, [&](const TripFill& fill)
                                { return fill.action == ClytFillAction::Fill && fill.control == list; });
}

// The marks come back into a control that the library is handed before it is asked.
void TellMarks(TripTeller& teller, const TripComparison& compared, const TripItem& item, const TripCut& cut)
{
    const std::vector<const ClytDialogOutput*> rules = HandedRules(compared.Of(), item.name);
    const auto asked = FindFill(cut, item.name);
    const auto taker = std::ranges::find_if(cut.fills, &TripFill::takesPiece);
    if (rules.empty() || asked == cut.fills.end() || taker == cut.fills.end())
        return;
    const auto isKnown = [&](const TripFill& fill) { return fill.takesPiece && IsHanded(rules, fill.control); };
    const auto known = std::ranges::find_if(cut.fills, isKnown);
    const std::string message = "the marks of " + InQuotes(item.name) + " come back into " + InQuotes(taker->control);
    if (known == cut.fills.end())
        teller.Tell("trip-list", compared.Of().PlaceOf(rules.back()->span.line), cut.span.line,
                    message + " in " + NumberedLine(cut.span.line) + ", and the library is not handed them here",
                    "write " + InQuotes(taker->control) + " here");
    else if (known > asked &&
             std::none_of(&cut + 1, compared.Made().cuts.data() + compared.Made().cuts.size(),
                          [&](const TripCut& later) { return FindFill(later, item.name) != later.fills.end(); }))
        teller.Tell("trip-list", asked->span, rules.back()->span.line,
                    message + " after the library was asked, which lists what they said before",
                    "write " + known->control + ", " + item.name + "(FILL)");
}

// What the text brought goes out again, and not what the user has made of it.
void TellOldMarks(TripTeller& teller, const TripComparison& compared, const TripItem& item, const TripCut& cut)
{
    for (const TripControl& list : compared.Plan().Controls())
    {
        if (list.kind != Kind::CheckList || !list.isListed || !list.isEntered || compared.Plan().IsPut(list.name) ||
            FindFill(cut, list.name) == cut.fills.end() || !IsHanded(HandedRules(compared.Of(), list.name), item.name))
            continue;
        teller.Tell("trip-dropped", item.span, cut.span.line,
                    "this writes the marks as they came, and not those that the user sets in " + InQuotes(list.name),
                    "write the list: " + list.name + "(\"|\")");
    }
}

} // namespace

void TellLibraryMarks(TripTeller& teller, const TripComparison& compared)
{
    for (const TripItem& item : compared.Made().out.items)
    {
        const TripControl* control = compared.Plan().Find(item.name);
        const TripCut* cut = control != nullptr && item.begin >= compared.Made().begin ? compared.CutAt(item) : nullptr;
        if (cut == nullptr)
            continue;
        if (control->isListed && control->kind == Kind::CheckList && !item.separators.empty())
            TellMarks(teller, compared, item, *cut);
        else if (!control->isEntered && cut->Takes(item.name))
            TellOldMarks(teller, compared, item, *cut);
    }
}

} // namespace lytdlg
