// Controls are nodes; a rule is an edge to its control from each control that it asks.
#include "lytdlg/draw/Dot.h"

#include "lytdlg/text/Words.h"

namespace lytdlg
{

namespace
{

class RuleEdges
{
public:
    RuleEdges(Dot& dot, const Description& description) : m_dot(dot), m_description(description) {}

    // A rule for an unknown control is dropped, and what it asks goes to the next one.
    void Draw(const ClytControlDep& rule)
    {
        const bool isDropped = !IsKnown(rule.controlName);
        const std::string target = ControlNode(m_dot, m_description, rule.controlName);
        const std::string word = Shown(rule.stateWord.GetText());
        if (rule.conditions.IsEmpty() && m_inherited.empty())
            DrawAlways(rule, target, isDropped);
        for (const auto& [condition, line] : m_inherited)
            DrawEdge(*condition, target, word, LineText(rule.span) + ", from " + LineText(line), true);
        if (!isDropped)
            m_inherited.clear();
        for (const ClytCtrlValList& condition : rule.conditions)
        {
            DrawEdge(condition, target, word, LineText(rule.span), isDropped || !IsKnown(condition.GetName()));
            if (isDropped)
                m_inherited.emplace_back(&condition, rule.span);
        }
    }

private:
    bool IsKnown(const CString& name) const { return m_description.FindControl(name.GetString()) != nullptr; }

    void DrawAlways(const ClytControlDep& rule, const std::string& target, bool isDropped)
    {
        const std::string always = "always in " + LineText(rule.span);
        m_dot.Node(always, "always", {{"shape", "plaintext"}});
        m_dot.Edge(always, target, Shown(rule.stateWord.GetText()) + "\n" + LineText(rule.span),
                   isDropped ? UnknownLook() : Attributes());
    }

    void DrawEdge(const ClytCtrlValList& condition, const std::string& target, const std::string& word,
                  const std::string& lines, bool isWrong)
    {
        const std::string source = ControlNode(m_dot, m_description, condition.GetName());
        const std::string values = ValuesText(condition.GetValues());
        m_dot.Edge(source, target, word + (values.empty() ? "" : " " + values) + "\n" + lines,
                   isWrong ? UnknownLook() : Attributes());
    }

    Dot& m_dot;
    const Description& m_description;
    std::vector<std::pair<const ClytCtrlValList*, ClytSpan>> m_inherited; // of the rules dropped since the last one
};

} // namespace

std::string RulesGraph(const std::string& title, const Description& description)
{
    Dot dot(title + ": dependency rules");
    RuleEdges edges(dot, description);
    for (const ClytControlDep& rule : description.rules)
        edges.Draw(rule);
    return dot.Finish();
}

} // namespace lytdlg
