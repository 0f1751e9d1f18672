#include "lytdlg/trip/TripComparison.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/FormatPieces.h"
#include "lytdlg/trip/TripEvidence.h"
#include "lytdlg/trip/TripTeller.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool IsOfLibrary(const TripControl& control)
{
    return control.isListed && control.kind == Kind::CheckList;
}

// A list with something in it may have a character before its items, and one after them.
bool HasBrackets(const TripItem& item)
{
    return !lytMeans<ClytFillAction::Concat>(item.separators.c_str()) && item.end > item.begin + 2;
}

// The items of a list can be cut as well, by its separators.
bool IsCutByLimit(const TripItem& item)
{
    return item.IsCut() && item.separators.empty();
}

} // namespace

// What only a library fills is not compared: it delivers what it likes.
bool TripComparison::IsTried(const std::string& name) const
{
    const TripControl* control = m_plan.Find(name);
    return control != nullptr && !IsOfLibrary(*control) &&
           (control->isEntered || control->isTaken || (control->isAnswered && !control->isListed));
}

bool TripComparison::IsChanged() const
{
    const auto isOfLibrary = [&](const TripItem& item)
    {
        const TripControl* control = m_plan.Find(item.name);
        return control != nullptr && (IsOfLibrary(*control) || (!control->isEntered && !control->isTaken));
    };
    return m_trip.again != m_trip.text && m_trip.againLine != 0 && std::ranges::none_of(m_trip.out.items, isOfLibrary);
}

bool TripComparison::IsLost(const TripItem& item) const
{
    const bool comesBackCut = IsCutByLimit(item) && m_trip.after.at(item.name) == Put(item);
    return IsBadCut(item) || (!comesBackCut && !IsSame(item.name));
}

const TripItem* TripComparison::ItemOf(const std::string& name) const
{
    const auto found = std::ranges::find(m_trip.out.items, name, &TripItem::name);
    return found != m_trip.out.items.end() ? &*found : nullptr;
}

std::string TripComparison::ComesBack(const std::string& name) const
{
    const auto found = m_trip.after.find(name);
    if (found == m_trip.after.end())
        return Excerpt(m_trip.text) + " does not come back as it was";
    const std::string& value = found->second;
    return Excerpt(m_trip.text) + " comes back with " +
           (value.empty() ? InQuotes(name) + " empty" : InQuotes(name) + " = " + Excerpt(value));
}

bool TripComparison::IsBack(const TripItem& item) const
{
    return item.end <= m_trip.begin + m_trip.text.size() && item.begin >= m_trip.begin && IsTried(item.name);
}

size_t TripComparison::Begin(const TripItem& item) const
{
    const bool isInBrackets = HasBrackets(item) && item.separators.size() > 1;
    return item.begin - m_trip.begin + (isInBrackets ? 1 : 0);
}

size_t TripComparison::End(const TripItem& item) const
{
    const bool isInBrackets = HasBrackets(item) && item.separators.size() > 2;
    return item.end - m_trip.begin - (isInBrackets ? 1 : 0);
}

ClytSpan TripComparison::PlaceOfConversion(const TripItem& item) const
{
    for (const ClytDialogOutput* rule : RulesOfResult(Of()))
    {
        const std::string format = rule->format.GetString();
        const ClytSpan place = Of().PlaceOf(rule->span.line, InQuotes(format), rule->span.column);
        if (rule->span.line != m_trip.out.line || place.length != static_cast<int>(format.size()) + 2)
            continue;
        std::ptrdiff_t left = &item - m_trip.out.items.data();
        for (const FormatPiece& piece : PiecesOf(format))
        {
            if (TakesItem(piece.kind) && left-- == 0)
                return {place.line, place.column + 1 + static_cast<int>(piece.start), static_cast<int>(piece.length)};
        }
    }
    return {};
}

ClytSpan TripComparison::PlaceAfterConversion(const TripItem& item) const
{
    const ClytSpan place = PlaceOfConversion(item);
    return place.line == 0 ? place : ClytSpan{place.line, place.column + place.length, 1};
}

const TripCut* TripComparison::CutAt(const TripItem& item) const
{
    const TripCut* last = nullptr;
    for (const TripCut& cut : m_trip.cuts)
    {
        const bool isIn = cut.begin <= Begin(item) && (Begin(item) < cut.end || item.begin == item.end);
        if (isIn && (last == nullptr || cut.begin > last->begin || cut.Takes(item.name)))
            last = &cut;
    }
    return last;
}

const TripCut* TripComparison::CutBefore(const TripCut& cut) const
{
    return &cut == m_trip.cuts.data() ? nullptr : &cut - 1;
}

bool TripComparison::IsBadCut(const TripItem& item) const
{
    if (!IsCutByLimit(item))
        return false;
    constexpr size_t nextToNothing = 2;
    const TripControl& control = *m_plan.Find(item.name);
    const bool isFree = !control.mark.empty();
    const size_t limit = item.end - item.begin;
    if (!isFree || (item.value == control.preset && !item.value.empty()))
        return true;
    const bool isCutByInput = control.cutLength > 0 && static_cast<size_t>(control.cutLength) <= limit;
    return !isCutByInput && (limit <= nextToNothing || HasLargerLimit(Of(), item.name, limit));
}

} // namespace lytdlg
