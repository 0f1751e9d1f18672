#include "lytdlg/trip/CollectingLists.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/trip/TripEvidence.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// A button that adds what is chosen in one list to another one.
struct Adding
{
    const ValueStatement* statement;
    std::string from;
    std::string to;
};

class CollectingLists
{
public:
    CollectingLists(TripTeller& findings, const Description& judged) : m_teller(findings), m_description(judged)
    {
        for (const ValueStatement& statement : judged.values)
        {
            if (RoleOf(judged, statement) == Role::Action && statement.values.size() > 1 &&
                lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Add)
                m_addings.push_back({&statement, statement.values[0], statement.values[1]});
        }
    }

    void Tell()
    {
        for (const Adding& adding : m_addings)
        {
            const ClytOutputItem* joined = JoinedIn(adding.from);
            if (joined == nullptr || IsWritten(adding.to) || IsAddedTo(adding.from))
                continue;
            if (!HasOwnItems(adding.from) && HasOwnItems(adding.to))
                TellSwapped(adding);
            else if (LastStatementOf(m_description, adding.from, Role::Source) != nullptr && !HasOwnItems(adding.to))
                TellForgotten(adding, *joined);
        }
        for (const ClytControlDep* rule : Records(m_description.rules))
            TellWaiting(*rule);
    }

private:
    bool HasOwnItems(const std::string& name) const
    {
        return !StatementsOf(m_description, name, Role::Item).empty() ||
               LastStatementOf(m_description, name, Role::Source) != nullptr;
    }

    // The item of the result that lists all of it; null without one.
    const ClytOutputItem* JoinedIn(const std::string& name) const
    {
        for (const ClytDialogOutput* rule : RulesOfResult(m_description))
        {
            for (const ClytOutputItem& item : rule->items)
            {
                if (name == item.text.GetString() && !item.action.IsEmpty())
                    return &item;
            }
        }
        return nullptr;
    }

    bool IsWritten(const std::string& name) const
    {
        const auto isItem = [&](const ClytOutputItem& item) { return name == item.text.GetString(); };
        return std::ranges::any_of(m_description.outputs,
                                   [&](const OutputGroup& group)
                                   {
                                       return std::ranges::any_of(Records(group.rules), [&](const auto* rule)
                                                                  { return std::ranges::any_of(rule->items, isItem); });
                                   });
    }

    bool IsAddedTo(const std::string& name) const
    {
        return std::ranges::find(m_addings, name, &Adding::to) != m_addings.end();
    }

    void TellSwapped(const Adding& adding)
    {
        m_teller.Tell("action-swapped", m_description.PlaceOf(adding.statement->span.line), 0,
                      "ADD takes from " + InQuotes(adding.from) + ", which the result lists, and gives to " +
                          InQuotes(adding.to) + ", which nothing writes",
                      "write " + InQuotes(adding.statement->name + ": ADD = " + adding.to + ", " + adding.from));
    }

    void TellForgotten(const Adding& adding, const ClytOutputItem& joined)
    {
        m_teller.Tell("trip-dropped", joined.span, 0,
                      "what the user collects in " + InQuotes(adding.to) + " goes into no text: this lists " +
                          InQuotes(adding.from) + ", from which it is taken",
                      "write " + adding.to + "(\"" + joined.action.GetString() + "\")");
    }

    // A button that fills a list, and waits for it to hold something.
    void TellWaiting(const ClytControlDep& rule)
    {
        for (const Adding& adding : m_addings)
        {
            const auto waits = [&](const ClytCtrlValList* condition)
            { return adding.to == condition->GetName().GetString() && AsksForContent(*condition); };
            if (adding.statement->name != rule.controlName.GetString() ||
                rule.stateWord.GetMeaning() != ClytState::Active || HasOwnItems(adding.to) ||
                std::ranges::none_of(Records(rule.conditions), waits) || IsFilledElsewhere(adding))
                continue;
            m_teller.Tell("lock-circle", m_description.PlaceOf(rule.span.line), 0,
                          InQuotes(adding.statement->name) + " waits for an item in " + InQuotes(adding.to) +
                              ", and is the only one to put one there",
                          "ask " + InQuotes(adding.from) + ", from which it takes");
        }
    }

    // By another button, or by a part that a button runs.
    bool IsFilledElsewhere(const Adding& adding) const
    {
        const auto isOther = [&](const Adding& other)
        { return other.to == adding.to && other.statement->name != adding.statement->name; };
        const auto fills = [&](const ClytDialogInput* statement)
        {
            return std::ranges::any_of(Records(statement->scanRule.rules), [&](const ClytConditionFill* rule)
                                       { return adding.to == rule->fills.GetHead()->controlName.GetString(); });
        };
        return std::ranges::any_of(m_addings, isOther) ||
               std::ranges::any_of(m_description.inputs,
                                   [&](const InputPart& part) {
                                       return part.name != lytParentName &&
                                              std::ranges::any_of(Records(part.part->GetStatements()), fills);
                                   });
    }

    TripTeller& m_teller; // of the caller, as the description is
    const Description& m_description;
    std::vector<Adding> m_addings;
};

} // namespace

void TellCollectingLists(TripTeller& teller, const Description& description)
{
    CollectingLists(teller, description).Tell();
}

} // namespace lytdlg
