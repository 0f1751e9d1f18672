// Reports items that the output cuts short, and of items that the input does not cut where they end.
#pragma once

#include "lytdlg/trip/TripComparison.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

class MiscutItems
{
public:
    MiscutItems(TripTeller& teller, const TripComparison& compared)
        : m_teller(teller), m_compared(compared), m_trip(compared.Made())
    {
    }

    // A limit of the output cuts the item off. True when the items after it may still be right.
    bool TellCut(const TripItem& item);
    // A separator that no statement cuts off makes an empty piece, and all others come one place too late. False when it
    // reports none.
    bool TellIdleCut();
    // The scan ended before the item.
    void TellEnd(const TripItem& item);
    // A statement passes over a fixed number of characters, as many as the output was meant to write between two items.
    void TellSkipped(const TripItem& item, const TripCut& cut);
    // The piece began before the item: with another item, or with what the format has there.
    void TellLateBegin(const TripItem& item, const TripCut& cut);
    void TellTooLong(const TripItem& item, const TripCut& cut);
    void TellTooShort(const TripItem& item, const TripCut& cut);

private:
    void TellLength(const TripItem& item, const TripCut& cut);
    void TellNotCutOff(const TripItem& item, const TripCut& cut);
    void TellNotSeparated(const TripItem& item, const TripCut& cut);
    std::string GapAfter(const TripItem& item) const;
    size_t ReadersOf(const std::string& gap) const;
    TripBlame BlameFor(const TripItem& item, const TripCut& cut, const std::string& gap) const;
    const ValueStatement* StatementOf(const std::string& name, const std::string& value) const;

    TripTeller& m_teller; // of the caller, as the others are
    const TripComparison& m_compared;
    const Trip& m_trip;
};

} // namespace lytdlg
