// A part is a cluster, a statement of it a node with its fills, and each way on an edge.
#include "lytdlg/draw/Dot.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/text/Words.h"

namespace lytdlg
{

namespace
{

struct WayOn
{
    std::string label;
    CString target;
    bool isUnknown = false; // a condition of it names no control
};

std::string QuotedText(const CString& text)
{
    return "'" + Shown(text) + "'";
}

std::vector<WayOn> CutsOf(const ClytScan& scan)
{
    if (scan.GetLength() > 0)
        return {{std::to_string(scan.GetLength()) + (scan.GetLength() == 1 ? " character" : " characters"),
                 scan.GetTarget().name}};
    std::vector<WayOn> ways;
    for (const ClytSeparator& separator : scan.GetSeparators())
    {
        const bool isRest = separator.text == "Rest";
        ways.push_back({isRest ? "'Rest', end of the text" : QuotedText(separator.text), separator.target.name});
    }
    return ways;
}

std::vector<WayOn> JumpsOf(const Description& description, const ClytDialogInput& statement)
{
    if (statement.conditions.IsEmpty())
        return {{"always", statement.falseTarget.name}};
    WayOn held{"", statement.trueTarget.name};
    for (const ClytCtrlValList& condition : statement.conditions)
    {
        held.label +=
            (held.label.empty() ? "if " : "\nor ") + Shown(condition.GetName()) + ValuesText(condition.GetValues());
        held.isUnknown = held.isUnknown || description.FindControl(condition.GetName().GetString()) == nullptr;
    }
    return {held, {"else", statement.falseTarget.name}};
}

std::string FillText(const ClytControlFill& fill)
{
    std::string text = Shown(fill.controlName);
    if (!fill.action.GetText().IsEmpty())
    {
        text += " (" + Shown(fill.action.GetText());
        for (const CString& operand : fill.operands)
            text += operand.IsEmpty() ? "" : ", " + QuotedText(operand);
        text += ")";
    }
    return fill.value.IsEmpty() ? text : text + " := " + Shown(fill.value);
}

// The graph of one part.
class PartGraph
{
public:
    PartGraph(Dot& dot, const Description& description, const InputPart& lines, size_t number)
        : m_dot(dot), m_description(description), m_part(*lines.part), m_prefix("part " + std::to_string(number) + " ")
    {
        dot.BeginCluster(std::to_string(number), "part " + Shown(lines.name.c_str()));
        FindReached(m_part.Find(lytStartName));
        for (const ClytDialogInput& statement : m_part.GetStatements())
            Draw(statement);
        if (m_part.Find(lytStartName) == nullptr)
            NodeOf(lytStartName);
        dot.EndCluster();
    }

private:
    std::vector<WayOn> WaysOn(const ClytDialogInput& statement) const
    {
        const ClytScan& scan = statement.scanRule.scan;
        return scan.HasScan() != 0 ? CutsOf(scan) : JumpsOf(m_description, statement);
    }

    void FindReached(const ClytDialogInput* start)
    {
        std::vector<const ClytDialogInput*> open = {start};
        while (!open.empty())
        {
            const ClytDialogInput* statement = open.back();
            open.pop_back();
            if (statement == nullptr || !m_reached.insert(statement).second)
                continue;
            for (const WayOn& way : WaysOn(*statement))
                open.push_back(IsEnd(way.target) ? nullptr : m_part.Find(way.target));
        }
    }

    static bool IsEnd(const CString& target) { return target == "End"; }

    // Of statements with one name only the last is ever found, so each has its line in the identifier.
    std::string NodeOf(const ClytDialogInput& statement) const
    {
        return m_prefix + Shown(statement.name) + " " + std::to_string(statement.span.line);
    }

    std::string NodeOf(const CString& target)
    {
        const ClytDialogInput* statement = IsEnd(target) ? nullptr : m_part.Find(target);
        if (statement != nullptr)
            return NodeOf(*statement);
        std::string id = m_prefix + Shown(target);
        if (IsEnd(target))
            m_dot.Node(id, "End", {{"shape", "doublecircle"}});
        else
            m_dot.Node(id, Shown(target) + "\nno such statement", UnknownLook());
        return id;
    }

    void Draw(const ClytDialogInput& statement)
    {
        const bool isReached = m_reached.contains(&statement);
        bool isKnown = true;
        const std::string label = Shown(statement.name) + "\n" + LineText(statement.span) +
                                  FillsOf(statement, isKnown) + (isReached ? "" : "\nnever reached");
        m_dot.Node(NodeOf(statement), label, !isKnown ? UnknownLook() : isReached ? Attributes() : UnusedLook());
        for (const WayOn& way : WaysOn(statement))
        {
            const std::string target = NodeOf(way.target);
            m_dot.Edge(NodeOf(statement), target, way.label,
                       way.isUnknown ? UnknownLook()
                       : isReached   ? Attributes()
                                     : UnusedLook());
        }
    }

    std::string FillsOf(const ClytDialogInput& statement, bool& isKnown) const
    {
        std::string text;
        for (const ClytConditionFill& rule : statement.scanRule.rules)
        {
            for (const ClytControlFill& fill : rule.fills)
            {
                const bool isControl = m_description.FindControl(fill.controlName.GetString()) != nullptr;
                isKnown = isKnown && isControl;
                text += "\n" + ValuesText(rule.values) + (rule.values.IsEmpty() ? "= " : " = ") + FillText(fill) +
                        (isControl ? "" : ": no such control");
            }
        }
        return text;
    }

    Dot& m_dot;
    const Description& m_description;
    const ClytInputPart& m_part;
    std::string m_prefix;
    std::set<const ClytDialogInput*> m_reached;
};

} // namespace

std::string ScanGraph(const std::string& title, const Description& description)
{
    Dot dot(title + ": scan states");
    for (size_t number = 0; const InputPart& lines : description.inputs)
        PartGraph(dot, description, lines, ++number);
    return dot.Finish();
}

} // namespace lytdlg
