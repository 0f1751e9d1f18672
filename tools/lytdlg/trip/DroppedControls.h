// Reports controls that the input reads and the rule that held leaves out.
#pragma once

#include "lytdlg/trip/TripComparison.h"
#include "lytdlg/trip/TripTeller.h"

namespace lytdlg
{

class DroppedControls
{
public:
    DroppedControls(TripTeller& teller, const TripComparison& compared)
        : m_teller(teller), m_compared(compared), m_trip(compared.Made())
    {
    }

    bool HasAny() const;
    // False when it reports none.
    bool Tell();

private:
    const ClytDialogOutput* Rule() const;
    std::vector<const ClytCtrlValList*> ChoicesOf(const ClytDialogOutput& rule) const;
    bool IsForSame(const ClytCtrlValList& choice, const ClytDialogOutput& other) const;
    bool MayLeaveOut(const std::string& name) const;
    bool IsReadNext(const std::string& name) const;
    bool IsMisread(const std::string& name) const;
    const ClytCtrlValList* LostChoice() const;
    bool TellChoice();
    bool IsDropped(const TripControl& control) const;

    TripTeller& m_teller; // of the caller, as the others are
    const TripComparison& m_compared;
    const Trip& m_trip;
};

} // namespace lytdlg
