// What the rules need to know for each statement of a description, looked up once, so that a check takes time in
// proportion to the length of the description.
#pragma once

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Description.h"

#include <map>
#include <unordered_map>
#include <unordered_set>

namespace lytdlg
{

// What the whole description says of one name.
struct ControlFacts
{
    const ClytControlStatement* control = nullptr;          // the last of that name; null for an unknown name
    std::vector<const ClytControlStatement*> optionButtons; // in the groups of that name
    std::map<Role, std::vector<const ValueStatement*>> statements;
    std::unordered_map<std::string, size_t> places; // of each value among the items, the first that has it
    std::set<ClytOption> options;
    bool isHidden = false;   // at times, by a rule or a button
    bool isDisabled = false; // likewise
    bool isFilled = false;   // by an input part
    bool getsItemsFromInput = false;
    bool getsItemsFromButton = false;
};

class DescriptionIndex
{
public:
    // The description is read, and outlives the index.
    explicit DescriptionIndex(const Description& description);

    const ControlFacts& FactsOf(const std::string& name) const;
    bool IsRefused(int line) const { return m_refusedLines.contains(line); }
    // Null for a control without a group.
    const ClytControlStatement* GroupOf(const ClytControlStatement& option) const;
    const std::vector<std::string>& ControlNames() const { return m_controlNames; }
    // What a double click can press: the push buttons, and OK.
    const std::vector<std::string>& ButtonNames() const { return m_buttonNames; }
    const std::vector<std::string>& GroupNames() const { return m_groupNames; }
    const std::vector<std::string>& PartNames() const { return m_partNames; }
    bool HasGroup(const std::string& name) const { return m_groups.contains(name); }
    bool HasPart(const std::string& name) const { return m_parts.contains(name); }
    // Among the items of the rules that compose the result.
    bool IsItemOfResult(const std::string& text) const { return m_resultItems.contains(text); }
    // Whether all its items go into some text.
    bool IsListed(const std::string& name) const { return m_listed.contains(name); }
    bool HasCheck(const std::string& name) const { return m_checked.contains(name); }
    bool IsMeantElsewhere(const std::string& name) const;
    const std::optional<std::set<std::string>>& PossibleValuesOf(const ClytControlStatement& control) const;

private:
    void TakeControls();
    void TakeValues();
    void TakeAction(const ValueStatement& statement);
    void TakeAdding(const std::string& target);
    void TakeRules();
    void TakeFills();
    void TakeOutputs();
    void TakeItem(const OutputGroup& group, const ClytOutputItem& item);
    std::unordered_set<std::string> NamesMeantElsewhere() const;

    const Description& m_description;
    std::unordered_map<std::string, ControlFacts> m_facts;
    std::unordered_map<const ClytControlStatement*, const ClytControlStatement*> m_groupsOfOptions;
    std::unordered_set<int> m_refusedLines;
    std::vector<std::string> m_controlNames;
    std::vector<std::string> m_buttonNames = {"OK"};
    std::vector<std::string> m_groupNames;
    std::vector<std::string> m_partNames;
    std::unordered_set<std::string> m_groups;
    std::unordered_set<std::string> m_parts;
    std::unordered_set<std::string> m_resultItems;
    std::unordered_set<std::string> m_listed;
    std::unordered_set<std::string> m_checked;
    mutable std::optional<std::unordered_set<std::string>> m_meantElsewhere; // looked up when it is asked for
    mutable std::unordered_map<const ClytControlStatement*, std::optional<std::set<std::string>>> m_possibleValues;
};

// Whether the piece of the input goes into the control.
bool TakesPiece(const ClytControlFill& fill);

} // namespace lytdlg
