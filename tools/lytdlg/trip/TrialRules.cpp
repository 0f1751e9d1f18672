// The trial of a description: texts go out of the dialog and come back into a fresh one, and its rules are tried for what
// locks the user out.
#include "lytdlg/judge/Families.h"
#include "lytdlg/trip/CollectingLists.h"
#include "lytdlg/trip/Locks.h"
#include "lytdlg/trip/NestedTrips.h"
#include "lytdlg/trip/Reach.h"
#include "lytdlg/trip/TripLoss.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

class LossTeller : public Traveller
{
public:
    LossTeller(TripTeller& findings, const TripPlan& tried) : m_teller(findings), m_plan(tried) {}

    void CameBack(const Trip& trip) override { TellLosses(m_teller, m_plan, trip); }
    void WasRefused(const Trip& trip, const TripCut& cut) override
    {
        m_teller.Tell("trip-changed", cut.span, trip.out.line,
                      "the dialog does not open again with " + Excerpt(trip.text) + ": it fails here",
                      "put the piece into a control that takes it");
    }

private:
    TripTeller& m_teller; // of the caller, as the plan is
    const TripPlan& m_plan;
};

// In a description that the library refuses there is nothing to try. What fails in the composition fails with OK.
bool IsOpening(const Case& judged)
{
    return std::ranges::none_of(judged.findings.All(),
                                [&](const Finding& finding)
                                {
                                    return finding.rule->level == Level::Error && finding.path.empty() &&
                                           judged.description.text.Line(finding.place.line).section != Section::Output;
                                });
}

} // namespace

void ApplyTrialRules(const Case& judged)
{
    const Description& description = judged.description;
    if (!description.mistakes.empty() || !IsOpening(judged))
        return;
    TripTeller teller(judged);
    TripStage stage(judged.isGivenUp);
    const bool isNested = judged.surroundings.descriptions.Open(PlainNameOf(description.path));
    const TripPlan plan(description, isNested);
    LossTeller losses(teller, plan);
    Journey journey(stage, plan, losses);
    journey.Make();
    // A dialog that others open need not read what it writes itself.
    if (isNested && teller.HasFindings() && ReturnsThroughCaller(judged, stage, plan))
        teller.Forget();
    const OutOfReach outOfReach = TellReach(teller, stage, plan, journey.Looks());
    teller.ForgetDropped(outOfReach.certain);
    teller.AddFindings();
    TellLocks(teller, stage, plan, journey.Looks(), outOfReach.controls);
    TellCollectingLists(teller, description);
    TryNested(teller, stage, plan);
    teller.AddFindings();
}

} // namespace lytdlg
