// A text that went out of a dialog beside what came back: which values are the same, and where each item was cut.
#pragma once

#include "lytdlg/trip/Trip.h"

namespace lytdlg
{

class TripComparison
{
public:
    // Plan and trip outlive the comparison.
    TripComparison(const TripPlan& plan, const Trip& trip) : m_plan(plan), m_trip(trip) {}

    const TripPlan& Plan() const { return m_plan; }
    const Trip& Made() const { return m_trip; }
    const Description& Of() const { return m_plan.Of(); }

    // Whether the text that goes out the next time is another one, and no library has a part in that: it may list something
    // else the second time.
    bool IsChanged() const;
    bool IsSame(const std::string& name) const { return m_trip.before.at(name) == m_trip.after.at(name); }
    // Whether the item is in what comes back, and can be compared.
    bool IsBack(const TripItem& item) const;
    bool IsLost(const TripItem& item) const;
    // Whether a limit cuts the item off, and is not meant to. An author who writes a limit means it, unless the dialog has
    // longer values itself, the limit leaves next to nothing, or another rule does without it.
    bool IsBadCut(const TripItem& item) const;

    // Null for a control that the rule does not write.
    const TripItem* ItemOf(const std::string& name) const;
    // What goes out of the item.
    std::string Put(const TripItem& item) const { return m_trip.out.text.substr(item.begin, item.end - item.begin); }
    // Its place in what comes back, without the brackets that a list may be put in.
    size_t Begin(const TripItem& item) const;
    size_t End(const TripItem& item) const;
    // Where the format takes the item, and the character after that; no place where the line has it otherwise.
    ClytSpan PlaceOfConversion(const TripItem& item) const;
    ClytSpan PlaceAfterConversion(const TripItem& item) const;

    // The cut in which the item begins; null when the scan ended before it.
    const TripCut* CutAt(const TripItem& item) const;
    // The cut before this one; null for the first.
    const TripCut* CutBefore(const TripCut& cut) const;

    // What comes back in the control, in the words of a finding.
    std::string ComesBack(const std::string& name) const;

private:
    bool IsTried(const std::string& name) const;

    const TripPlan& m_plan;
    const Trip& m_trip;
};

} // namespace lytdlg
