#include "GeneratedDialog.h"

#include "controls/TypeWords.h"

#include <algorithm>

namespace
{

using Words = std::vector<std::string>;

const Words types = {"TextBox",  "TextBox",     "TextBox",    "ListBox",    "CheckListBox", "ComboBox", "DropListBox",
                     "CheckBox", "OptionGroup", "PushButton", "PushButton", "Text",         "GroupBox"};
const Words withoutValue = {"Text", "GroupBox", "PushButton", "OKButton", "CancelButton"};
const Words values = {"NULL", "NOTNULL", "a", "b", "1", "on", "zz", ""};
const Words states = {"VISIBLE", "VISIBLE", "ACTIVE", "ACTIVE", "FILL", "FILL", "CLEAR", "DEFBUTTON"};
const Words options = {"HIDDEN", "DISPLAYONLY", "INVISIBLE", "INACTIVE"};
const Words textFunctions = {"Echo", "Echo", "Raise", "RaiseNumber", "Exhaust", "Nowhere"};
const Words startFunctions = {"Open", "Open", "OpenRaises"};
const Words nextFunctions = {"Next", "NextRaises", "Nowhere"};
const Words groups = {"one", "two", "three"};
// The second conversion is not one, and is found when the text is composed.
const Words formats = {"%s;%s", "%s", "plain", "%s.5%q", "%s%"};

} // namespace

GeneratedDialog::GeneratedDialog(Dice& dice) : m_dice(dice)
{
    m_text.section = "TEXTS";
    for (size_t count = 1 + dice.Below(7), number = 0; number < count; ++number)
        AddControl(number);
    if (!dice.Is(8))
        AddLayout("OKButton", "Ok");
    if (!dice.Is(5))
        AddLayout("CancelButton", "Cancel");
    for (size_t count = 1 + dice.Below(7); count > 0; --count)
        AddRule();
    for (size_t count = dice.Below(3); count > 0; --count)
        m_text.evaluation +=
            AnyValued() + (dice.Is(2) ? " = NULL: REFUSED\n" : "(a, 1) = " + AnyValued() + "(NULL): REFUSED\n");
    AddInput();
    AddGroup("parent");
    for (const std::string& group : groups)
        AddGroup(group);
}

void GeneratedDialog::AddLayout(const std::string& type, const std::string& name)
{
    m_text.layout += type + " 10, " + std::to_string(m_top) + ", 120, " +
                     (lytTypeOf(type).kind == ClytKind::Field ? "19" : "60") + ", \"" + (m_dice.Is(6) ? "" : "LABEL") +
                     "\", ." + name + "\n";
    m_names.push_back(name);
    if (std::ranges::find(withoutValue, type) == withoutValue.end())
        m_valued.push_back(name);
    m_top += 26;
}

void GeneratedDialog::AddControl(size_t number)
{
    const std::string& type = m_dice.Of(types);
    const std::string name(1, static_cast<char>('A' + number));
    if (lytTypeOf(type).kind == ClytKind::OptionGroup)
        AddOptions(name);
    else
    {
        AddLayout(type, name);
        AddValues(name, type);
    }
    if (m_dice.Is(10))
        m_text.values += name + " = " + m_dice.Of(options) + "\n";
}

void GeneratedDialog::AddOptions(const std::string& name)
{
    m_text.layout += "OptionGroup ." + name + "\n";
    m_names.push_back(name);
    m_valued.push_back(name);
    for (const std::string value : {"a", "b"})
    {
        AddLayout("OptionButton", name + value);
        m_text.values += name + value + " = " + value + "\n";
    }
    if (m_dice.Is(2))
        m_text.values += name + " = a\n";
}

void GeneratedDialog::AddValues(const std::string& name, const std::string& typeWord)
{
    const ClytType& type = lytTypeOf(typeWord);
    if (type.kind == ClytKind::Field && m_dice.Is(2))
    {
        m_text.values += name + " = FILLEDBY, failing, " + m_dice.Of(textFunctions) + ", x" +
                         (m_dice.Is(2) ? ", " + m_dice.Of(groups) : "") + "\n";
        m_filled.push_back(name);
    }
    else if (type.kind == ClytKind::Field)
        m_text.values += name + " = " + m_dice.Of(values) + "\n";
    else if (type.hasItems)
        AddListValues(name, !type.isOpenList);
    else if (type.kind == ClytKind::CheckBox)
        m_text.values += name + ": ON = on\n" + name + ": OFF = off\n";
    else if (type.kind == ClytKind::Button)
        AddAction(name);
}

void GeneratedDialog::AddListValues(const std::string& name, bool isCombo)
{
    for (size_t count = m_dice.Below(5), item = 0; item < count; ++item)
        m_text.values += name + ": LABEL = " + (m_dice.Is(3) ? "X" : "") + std::to_string(item) + "\n";
    if (m_dice.Is(2))
    {
        m_text.values += name + " = FILLEDBY, failing, " + m_dice.Of(startFunctions) + ", " + m_dice.Of(nextFunctions) +
                         ", " + m_dice.Of(groups) + (isCombo ? ", LABEL/first\n" : "\n");
        m_filled.push_back(name);
    }
    if (!isCombo && m_dice.Is(3))
        m_text.values += name + ": DBLCLICK = " + (m_dice.Is(2) ? "OK" : AnyName()) + "\n";
}

void GeneratedDialog::AddAction(const std::string& name)
{
    static const Words ofOne = {"VISIBLE", "ACTIVE", "DELETE", "UP", "DOWN", "FILL", "REJECT"};
    const std::string action = m_dice.Of(ofOne);
    const std::string group = m_dice.Of(groups);
    switch (m_dice.Below(4))
    {
    case 0: m_text.values += name + ": DIALOG = nested, back, " + group + "\n"; break;
    case 1: m_text.values += name + ": ADD = " + AnyName() + ", " + AnyName() + "\n"; break;
    case 2:
        m_text.values += name + ": ACTION = failing, " + m_dice.Of(textFunctions) + ", " + group + ", back\n";
        break;
    default: m_text.values += name + ": " + action + " = " + AnyName() + "\n";
    }
}

std::string GeneratedDialog::AnyName()
{
    return m_names.empty() || m_dice.Is(20) ? "Nobody" : m_dice.Of(m_names);
}

std::string GeneratedDialog::AnyValued()
{
    return m_valued.empty() ? "text" : m_dice.Of(m_valued);
}

std::string GeneratedDialog::Conditions()
{
    std::string text;
    for (size_t count = 1 + m_dice.Below(2); count > 0; --count)
    {
        text += (text.empty() ? "" : ", ") + (m_dice.Is(8) ? AnyName() : AnyValued());
        if (m_dice.Is(2))
            text += "(" + m_dice.Of(values) + (m_dice.Is(4) ? ", " + m_dice.Of(values) : "") + ")";
    }
    return text;
}

void GeneratedDialog::AddRule()
{
    const std::string& state = m_dice.Of(states);
    const bool fills = state == "FILL" && !m_filled.empty();
    m_text.dependencies += (fills ? m_dice.Of(m_filled) : AnyName()) + "/" + state + " = " + Conditions() + "\n";
}

void GeneratedDialog::AddInput()
{
    static const Words fillWords = {"", "", "(FILL)", "(ADD)", "(CONCAT, \"|\")", "(MODIFY)"};
    const auto fill = [&] { return AnyName() + m_dice.Of(fillWords); };
    m_text.input = "Start: (\";\", More, Rest, End = " + fill() + "\nMore: (999, End = " + fill() + ", " + fill() +
                   "\n" + "$INPUT, back\nStart: (999, End = " + fill() + "\n";
}

void GeneratedDialog::AddGroup(const std::string& name)
{
    if (name != "parent")
        m_text.output += "$OUTPUT, " + name + "\n";
    // A condition on a control that is not there fails whenever the group is composed.
    if (m_dice.Is(4))
        m_text.output += (m_dice.Is(2) ? AnyValued() : "Misspelt") + "(a) = (\"%s\", " + AnyValued() + ")\n";
    if (!m_dice.Is(8))
        m_text.output += "(\"" + m_dice.Of(formats) + "\", " + AnyValued() + ", " + AnyValued() + ")\n";
}
