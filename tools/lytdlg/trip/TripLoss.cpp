#include "lytdlg/trip/TripLoss.h"

#include "lytdlg/trip/AstrayPieces.h"
#include "lytdlg/trip/DroppedControls.h"
#include "lytdlg/trip/LibraryMarks.h"
#include "lytdlg/trip/MiscutItems.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

class LossSearch
{
public:
    LossSearch(TripTeller& teller, const TripComparison& compared)
        : m_teller(teller),
          m_compared(compared),
          m_trip(compared.Made()),
          m_dropped(teller, compared),
          m_miscut(teller, compared),
          m_astray(teller, compared)
    {
    }

    void Tell()
    {
        if (!HasLoss())
        {
            TellFits();
            return;
        }
        if (m_dropped.Tell() || m_miscut.TellIdleCut())
            return;
        bool isTold = false;
        for (const TripItem& item : m_trip.out.items)
        {
            if (!m_compared.IsBack(item) || (!m_compared.IsLost(item) && !IsTornByChance(item)))
                continue;
            isTold = true;
            if (!TellItem(item))
                return;
        }
        if (!isTold && m_compared.IsChanged())
            m_teller.Tell("trip-changed", m_compared.Of().PlaceOf(m_trip.out.line), m_trip.againLine,
                          Excerpt(m_trip.text) + " comes back, and " + NumberedLine(m_trip.againLine) + " makes " +
                              Excerpt(m_trip.again) + " of it",
                          "let the text say what this rule asks for, and the input read it");
    }

private:
    // What a statement cuts off comes into the control that it was written from. The end of the text fits everywhere.
    void TellFits()
    {
        for (const TripCut& cut : m_trip.cuts)
        {
            for (const TripJump& jump : cut.jumps)
                m_teller.TellFit(jump.span.line, "");
            const bool isCut =
                cut.length > 0 ? cut.end - cut.begin == static_cast<size_t>(cut.length) : cut.next > cut.end;
            const auto isItem = [&](const TripItem& item)
            {
                return m_compared.IsBack(item) && m_compared.Begin(item) == cut.begin &&
                       m_compared.End(item) == cut.end && cut.Takes(item.name) &&
                       (cut.length == 0 || !IsLongByChance(item, cut));
            };
            if (isCut && (!cut.TakesAny() || std::ranges::any_of(m_trip.out.items, isItem)))
                m_teller.TellFit(cut.span.line, m_trip.text.substr(cut.end, cut.next - cut.end));
        }
    }

    // A field is given a text of the length that the input takes; an author need not.
    bool IsLongByChance(const TripItem& item, const TripCut& cut) const
    {
        return !m_compared.Plan().Find(item.name)->mark.empty() && item.limit > cut.length;
    }

    // Its control still holds the value, and the pieces after it go into wrong controls.
    bool IsTornByChance(const TripItem& item) const
    {
        const TripCut* cut = m_compared.CutAt(item);
        return cut != nullptr && cut->length == 0 && cut->begin == m_compared.Begin(item) &&
               cut->end < m_compared.End(item) && item.separators.empty() && !item.IsCut() && cut->Takes(item.name);
    }

    bool HasLoss() const
    {
        return m_compared.IsChanged() ||
               std::ranges::any_of(m_trip.out.items, [&](const TripItem& item)
                                   { return m_compared.IsBack(item) && m_compared.IsLost(item); }) ||
               m_dropped.HasAny();
    }

    // True when the pieces after this one may still be right.
    bool TellItem(const TripItem& item)
    {
        if (m_compared.IsBadCut(item))
            return m_miscut.TellCut(item);
        const TripCut* cut = m_compared.CutAt(item);
        const auto isGiven = [&](const TripFill& fill) { return fill.control == item.name; };
        if (cut != nullptr && m_astray.TellWrongWay(item, *cut))
            return false;
        if (cut != nullptr && !cut->TakesAny() && std::ranges::any_of(cut->fills, isGiven) && m_astray.TellGiven(item))
            return true;
        if (cut == nullptr && !m_astray.TellGiven(item))
            m_miscut.TellEnd(item);
        else if (cut == nullptr)
            return true;
        else if (cut->length > 0 && !cut->TakesAny() && cut->end > m_compared.Begin(item))
            m_miscut.TellSkipped(item, *cut);
        else if (cut->begin < m_compared.Begin(item))
            m_miscut.TellLateBegin(item, *cut);
        else if (cut->end > m_compared.End(item))
            m_miscut.TellTooLong(item, *cut);
        else if (cut->end < m_compared.End(item))
            m_miscut.TellTooShort(item, *cut);
        else
        {
            m_astray.TellAstray(item, *cut);
            return true;
        }
        return false;
    }

    TripTeller& m_teller; // of the caller, as the others are
    const TripComparison& m_compared;
    const Trip& m_trip;
    DroppedControls m_dropped;
    MiscutItems m_miscut;
    AstrayPieces m_astray;
};

} // namespace

void TellLosses(TripTeller& teller, const TripPlan& plan, const Trip& trip)
{
    std::vector<int> way;
    for (const TripCut& cut : trip.cuts)
    {
        for (const TripJump& jump : cut.jumps)
            way.push_back(jump.span.line);
        way.push_back(cut.span.line);
    }
    teller.BeginTrip(trip.out.line, std::move(way));
    const TripComparison compared(plan, trip);
    LossSearch(teller, compared).Tell();
    TellLibraryMarks(teller, compared);
    teller.BeginTrip(0, {});
}

} // namespace lytdlg
