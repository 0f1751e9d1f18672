#include "lytdlg/judge/DescriptionIndex.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/StatementText.h"

namespace lytdlg
{

namespace
{

// Whether the items of a list come from the fill.
bool AddsItems(const ControlFacts& facts, const ClytControlFill& fill)
{
    const ClytFillAction action = fill.action.GetMeaning();
    if (action == ClytFillAction::Add)
        return facts.control != nullptr && lytTypeOf(KindOf(*facts.control)).takesItems;
    return action == ClytFillAction::Modify || action == ClytFillAction::Concat;
}

} // namespace

DescriptionIndex::DescriptionIndex(const Description& description) : m_description(description)
{
    for (const Mistake& mistake : description.mistakes)
        m_refusedLines.insert(mistake.place.line);
    TakeControls();
    TakeValues();
    TakeRules();
    TakeFills();
    for (const EvaluationStatement& statement : description.evaluations)
        m_checked.insert(statement.own.GetName().GetString());
    TakeOutputs();
}

const ControlFacts& DescriptionIndex::FactsOf(const std::string& name) const
{
    static const ControlFacts none;
    const auto found = m_facts.find(name);
    return found != m_facts.end() ? found->second : none;
}

const ClytControlStatement* DescriptionIndex::GroupOf(const ClytControlStatement& option) const
{
    const auto found = m_groupsOfOptions.find(&option);
    return found != m_groupsOfOptions.end() ? found->second : nullptr;
}

bool DescriptionIndex::IsMeantElsewhere(const std::string& name) const
{
    if (!m_meantElsewhere)
        m_meantElsewhere = NamesMeantElsewhere();
    return m_meantElsewhere->contains(name);
}

const std::optional<std::set<std::string>>&
DescriptionIndex::PossibleValuesOf(const ClytControlStatement& control) const
{
    const auto [place, isNew] = m_possibleValues.try_emplace(&control);
    if (isNew)
        place->second = PossibleValues(m_description, control);
    return place->second;
}

void DescriptionIndex::TakeControls()
{
    const ClytControlStatement* group = nullptr;
    for (const ClytControlStatement& control : m_description.controls)
    {
        m_facts[control.name.GetString()].control = &control;
        if (!control.name.IsEmpty())
            m_controlNames.emplace_back(control.name.GetString());
        const Kind kind = KindOf(control);
        if (kind == Kind::Button && !control.name.IsEmpty())
            m_buttonNames.emplace_back(control.name.GetString());
        group = kind == Kind::OptionGroup ? &control : group;
        if (kind != Kind::Option || group == nullptr)
            continue;
        m_groupsOfOptions[&control] = group;
        m_facts[group->name.GetString()].optionButtons.push_back(&control);
    }
}

void DescriptionIndex::TakeValues()
{
    for (const ValueStatement& statement : m_description.values)
    {
        ControlFacts& facts = m_facts[statement.name];
        const Role role = RoleOf(facts.control != nullptr ? KindOf(*facts.control) : Kind::Unknown, statement);
        std::vector<const ValueStatement*>& statements = facts.statements[role];
        if (role == Role::Item)
            facts.places.emplace(statement.values.front(), statements.size());
        else if (role == Role::Option)
            facts.options.insert(lytMeaningOf<ClytOption>(statement.values.front().c_str()));
        statements.push_back(&statement);
        if (role == Role::Action)
            TakeAction(statement);
    }
}

void DescriptionIndex::TakeAction(const ValueStatement& statement)
{
    switch (lytMeaningOf<ClytAction>(statement.keyword.c_str()))
    {
    case ClytAction::Visible: m_facts[statement.values.front()].isHidden = true; break;
    case ClytAction::Active: m_facts[statement.values.front()].isDisabled = true; break;
    case ClytAction::Add: TakeAdding(statement.values.back()); break;
    default: break;
    }
}

void DescriptionIndex::TakeAdding(const std::string& target)
{
    ControlFacts& facts = m_facts[target];
    facts.getsItemsFromButton = facts.control != nullptr && lytTypeOf(KindOf(*facts.control)).takesItems;
}

void DescriptionIndex::TakeRules()
{
    for (const ClytControlDep* rule : Records(m_description.rules))
    {
        ControlFacts& facts = m_facts[rule->controlName.GetString()];
        const ClytState meaning = rule->stateWord.GetMeaning();
        facts.isHidden = facts.isHidden || meaning == ClytState::Visible || meaning == ClytState::Other;
        facts.isDisabled = facts.isDisabled || meaning == ClytState::Active;
    }
}

void DescriptionIndex::TakeFills()
{
    for (const InputPart& input : m_description.inputs)
    {
        m_partNames.push_back(input.name);
        m_parts.insert(input.name);
        for (const ClytDialogInput* statement : Records(input.part->GetStatements()))
        {
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                for (const ClytControlFill* fill : Records(rule->fills))
                {
                    ControlFacts& facts = m_facts[fill->controlName.GetString()];
                    facts.isFilled = true;
                    facts.getsItemsFromInput = facts.getsItemsFromInput || AddsItems(facts, *fill);
                }
            }
        }
    }
}

void DescriptionIndex::TakeOutputs()
{
    for (const OutputGroup& group : m_description.outputs)
    {
        m_groupNames.push_back(group.name);
        m_groups.insert(group.name);
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            for (const ClytOutputItem& item : rule->items)
                TakeItem(group, item);
        }
    }
}

void DescriptionIndex::TakeItem(const OutputGroup& group, const ClytOutputItem& item)
{
    const std::string text = item.text.GetString();
    if (group.name == lytParentName)
        m_resultItems.insert(text);
    if (!item.action.IsEmpty())
        m_listed.insert(text);
}

// Names that a statement for an unknown control was meant for, and the words of lines that are refused.
std::unordered_set<std::string> DescriptionIndex::NamesMeantElsewhere() const
{
    std::unordered_set<std::string> names;
    for (const ValueStatement& value : m_description.values)
    {
        if (FactsOf(value.name).control == nullptr)
            names.insert(MeantWord(value.name, m_controlNames));
    }
    for (const SourceLine* line : m_description.text.LinesOf(Section::Values))
    {
        if (!IsRefused(line->number))
            continue;
        for (const LineToken& word : TokensOf(line->text, Section::Values))
        {
            names.insert(word.text);
            names.insert(word.text.substr(0, word.text.find(' ')));
        }
    }
    return names;
}

bool TakesPiece(const ClytControlFill& fill)
{
    const ClytFillAction action = fill.action.GetMeaning();
    return action == ClytFillAction::Other ? fill.value.IsEmpty() : action != ClytFillAction::Fill;
}

} // namespace lytdlg
