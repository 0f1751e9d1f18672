// A description of a few controls of any type and rules at random, of which many fail.
#pragma once

#include "support/DescriptionText.h"
#include "support/Dice.h"

#include <string>
#include <vector>

class GeneratedDialog
{
public:
    explicit GeneratedDialog(Dice& dice);

    std::string Text() const { return m_text(); }

private:
    void AddControl(size_t number);
    void AddOptions(const std::string& name);
    void AddValues(const std::string& name, const std::string& typeWord);
    void AddListValues(const std::string& name, bool isCombo);
    void AddAction(const std::string& name);
    void AddRule();
    void AddGroup(const std::string& name);
    void AddInput();
    void AddLayout(const std::string& type, const std::string& name);
    // A control that is there, and now and then one that is not.
    std::string AnyName();
    // One that is there and has a value, if any.
    std::string AnyValued();
    std::string Conditions();

    Dice& m_dice;
    DescriptionText m_text;
    std::vector<std::string> m_names;
    std::vector<std::string> m_valued; // those whose value can be read
    std::vector<std::string> m_filled; // by a library
    int m_top = 5;
};
