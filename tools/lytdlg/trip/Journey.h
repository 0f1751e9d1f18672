// The trials of one description: each filling of its controls, the text that it gives, and the dialog that opens with that.
#pragma once

#include "lytdlg/trip/Trip.h"
#include "lytdlg/trip/TripStates.h"

namespace lytdlg
{

// What was seen of one trial.
struct TripLook
{
    std::set<std::string> opened;      // the controls that the user reached before anything was entered
    std::set<std::string> reached;     // and after
    std::vector<std::string> refusing; // the controls whose checks refused the result
    int line = 0;                      // of the rule that gave a result; 0 for none
};

// Is notified of the texts that were composed.
class Traveller
{
public:
    virtual void CameBack(const Trip& trip) = 0;
    // The dialog did not open with the text; the cut is the last that was made of it.
    virtual void WasRefused(const Trip& trip, const TripCut& cut) = 0;

protected:
    ~Traveller() = default;
};

class Journey
{
public:
    // All outlive the journey.
    Journey(TripStage& trialStage, const TripPlan& tried, Traveller& hearer)
        : m_stage(trialStage), m_plan(tried), m_traveller(hearer)
    {
    }

    // Tries every filling.
    void Make();
    void Try(const TripState& state);
    const std::vector<TripLook>& Looks() const { return m_looks; }

private:
    // The refusing controls; none when the text could go out.
    std::vector<std::string> TryOnce(const TripState& state);
    TripState AllowedBy(const std::vector<std::string>& refusing, TripState state) const;
    void GoThere(TripForm& form, const TripText& out, const std::set<std::string>& reached);
    std::set<std::string> ReachedIn(TripForm& form) const;
    std::string ComingBack(const std::string& text, size_t& begin) const;
    void TryLong(size_t index);

    TripStage& m_stage;
    const TripPlan& m_plan;
    Traveller& m_traveller;
    std::vector<TripLook> m_looks;
    std::vector<TripState> m_allowed; // that were tried in the place of refused ones
};

} // namespace lytdlg
