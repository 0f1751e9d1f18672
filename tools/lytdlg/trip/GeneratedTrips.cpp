#include "lytdlg/trip/GeneratedTrips.h"

#include "lytdlg/judge/Lists.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// What an author types without a thought: a blank, quotes, brackets, a percent sign, an umlaut in code page 1252.
constexpr const char* oftenTyped[] = {" ", "\"", "(", ")", "[", "]", "{", "}", "%", "\\", "\xE4"};

class TripRecorder : public Traveller
{
public:
    explicit TripRecorder(const TripPlan& tried) : m_plan(tried) {}

    void CameBack(const Trip& trip) override
    {
        std::string lost;
        for (const TripItem& item : trip.out.items)
        {
            const bool isBack = item.begin >= trip.begin && item.end <= trip.begin + trip.text.size();
            const TripControl* control = m_plan.Find(item.name);
            const bool isListed = control != nullptr && control->isListed && control->kind == Kind::CheckList;
            if (isBack && control != nullptr && !isListed && trip.before.at(item.name) != trip.after.at(item.name))
                lost += (lost.empty() ? "" : ", ") + item.name;
        }
        Add({m_typed, trip.text, trip.again, lost});
    }
    void WasRefused(const Trip& trip, const TripCut& /*cut*/) override { Add({m_typed, trip.text, "", ""}); }

    void SetTyped(std::string typed) { m_typed = std::move(typed); }
    std::vector<GeneratedTrip> TakeTrips() { return std::move(m_trips); }

private:
    // Each text once.
    void Add(GeneratedTrip trip)
    {
        if (m_texts.insert(trip.text).second)
            m_trips.push_back(std::move(trip));
    }

    const TripPlan& m_plan; // of the caller
    std::string m_typed;
    std::set<std::string> m_texts;
    std::vector<GeneratedTrip> m_trips;
};

std::vector<std::string> SeparatorsOf(const Description& description)
{
    std::vector<std::string> separators(std::begin(oftenTyped), std::end(oftenTyped));
    for (const InputPart& part : description.inputs)
    {
        for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
        {
            for (const ClytSeparator* separator : Records(statement->scanRule.scan.GetSeparators()))
            {
                const std::string text = separator->text.GetString();
                if (!text.empty() && std::ranges::find(separators, text) == separators.end())
                    separators.push_back(text);
            }
        }
    }
    return separators;
}

void TryTyped(Journey& journey, TripRecorder& recorder, const TripPlan& plan)
{
    for (size_t index = 0; index < plan.Controls().size(); ++index)
    {
        const TripControl& control = plan.Controls()[index];
        if (!control.isEntered || control.mark.empty())
            continue;
        for (const std::string& separator : SeparatorsOf(plan.Of()))
        {
            TripState state = FullState(plan);
            state[index] = {TripWish::Kind::Value, control.mark + separator + control.mark};
            recorder.SetTyped(InQuotes(separator) + " in " + InQuotes(control.name));
            journey.Try(state);
        }
    }
}

std::vector<std::string> NotTriedOf(const TripPlan& plan, const std::vector<TripLook>& looks)
{
    std::vector<std::string> reasons;
    if (!plan.HasMarks())
        return {"every control: the separators leave too few letters for texts unlike each other"};
    if (!plan.ComesBack())
        reasons.emplace_back("the way back: the input takes something else apart than the output puts together");
    for (const TripControl& control : plan.Controls())
    {
        const auto isReached = [&](const TripLook& look) { return look.reached.contains(control.name); };
        if (!plan.IsPut(control.name))
            continue;
        if (control.isListed && control.kind == Kind::CheckList)
            reasons.push_back("the marks of " + InQuotes(control.name) + ", which its library lists");
        else if (control.kind == Kind::Combo && control.mark.empty())
            reasons.push_back("a text in " + InQuotes(control.name) + " that is not an item");
        if (control.isEntered && std::ranges::none_of(looks, isReached))
            reasons.push_back("values of " + InQuotes(control.name) + ", which no trial has reached");
    }
    return reasons;
}

} // namespace

GeneratedTrips GenerateTrips(const Description& description)
{
    const TripPlan plan(description, false);
    TripStage stage;
    TripRecorder recorder(plan);
    Journey journey(stage, plan, recorder);
    journey.Make();
    TryTyped(journey, recorder, plan);
    return {recorder.TakeTrips(), NotTriedOf(plan, journey.Looks())};
}

} // namespace lytdlg
