// Reports pieces that are cut correctly but go into another control, or into one that does not keep them.
#pragma once

#include "lytdlg/trip/TripComparison.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

class AstrayPieces
{
public:
    AstrayPieces(TripTeller& teller, const TripComparison& compared)
        : m_teller(teller), m_compared(compared), m_trip(compared.Made())
    {
    }

    // The input knows the value by its separator, and then puts a fixed text into the control. False when it does not.
    bool TellGiven(const TripItem& item);
    // The run came to the cut, and another target of what led there takes the item. False when none does.
    bool TellWrongWay(const TripItem& item, const TripCut& cut);
    void TellAstray(const TripItem& item, const TripCut& cut);

private:
    bool IsSkipped(const TripItem& item, const std::string& taken) const;
    bool IsHeld(const std::string& name) const;
    bool TellWay(const TripItem& item, const ClytSpan& jump, const std::string& taken, const std::string& other,
                 TripBlame blame);
    TripBlame BlameFor(const TripItem& item, const TripCut& cut, const TripFill& taker) const;
    void TellAstrayTo(const TripItem& item, const ClytSpan& reader, const std::string& where, const std::string& hint,
                      TripBlame blame);
    bool IsSwapped(const TripItem& item, const TripFill& taker) const;
    void TellSwapped(const TripItem& item, const TripCut& cut, const TripFill& taker);
    const TripFill* LastFillOf(const std::string& name, const TripCut*& of) const;
    void TellNotKept(const TripItem& item, const TripCut& cut);
    void TellList(const TripItem& item, const TripFill& fill);

    TripTeller& m_teller; // of the caller, as the others are
    const TripComparison& m_compared;
    const Trip& m_trip;
};

} // namespace lytdlg
