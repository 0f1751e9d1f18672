// Output groups, input parts, nested dialogs and libraries are nodes beside the controls that use them.
#include "lytdlg/draw/Dot.h"

#include "commandline/Text.h"
#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/Words.h"
#include "model/ClytWords.h"

#include <algorithm>
#include <filesystem>

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

// The value in that place, from 0, or an empty text.
std::string ValueAt(const ValueStatement& statement, size_t index)
{
    return index < statement.values.size() ? statement.values[index] : "";
}

class UseGraph
{
public:
    UseGraph(const std::string& title, const Description& description, std::string dialogFolder)
        : m_dot(title + ": output groups"), m_description(description), m_folder(std::move(dialogFolder))
    {
    }

    std::string Draw()
    {
        m_dot.Node("dialog", "the dialog", {{"shape", "ellipse"}});
        m_dot.Edge("dialog", PartNode(lytParentName), "its input");
        m_dot.Edge("dialog", GroupNode(lytParentName), "its result");
        for (const ValueStatement& statement : m_description.values)
            DrawValue(statement);
        for (const InputPart& part : m_description.inputs)
            DrawFills(part);
        DrawUnused();
        return m_dot.Finish();
    }

private:
    struct Use
    {
        ClytAction action;
        void (UseGraph::*draw)(const ValueStatement& statement);
    };

    void DrawValue(const ValueStatement& statement)
    {
        static constexpr Use uses[] = {{ClytAction::Dialog, &UseGraph::DrawDialog},
                                       {ClytAction::Action, &UseGraph::DrawAction},
                                       {ClytAction::Fill, &UseGraph::DrawFill}};
        const ClytControlStatement* control = m_description.FindControl(statement.name);
        const CString keyword = statement.keyword.c_str();
        if (control != nullptr && KindOf(*control) == Kind::Button)
        {
            const auto use = std::ranges::find(uses, lytMeaningOf<ClytAction>(keyword), &Use::action);
            if (use != std::end(uses))
                (this->*use->draw)(statement);
        }
        else if (lytMeans<ClytKeyword::FilledBy>(keyword))
            DrawSource(statement);
        else if (lytMeans<ClytKeyword::DoubleClick>(keyword) && !statement.values.empty())
            DrawDoubleClick(statement);
    }

    // A dialog is handed what a group composes, and a part takes its result apart.
    void DrawDialog(const ValueStatement& statement)
    {
        const std::string button = NodeOf(statement.name);
        const std::string file = ValueAt(statement, 0) + ".dlg";
        const std::string dialog = "file " + ToUtf8(file);
        const bool isThere = std::filesystem::exists(PathOf(m_folder) / PathOf(ToUtf8(file)));
        m_dot.Node(dialog, ToUtf8(file) + (isThere ? "" : "\nno such file"), Looks({{"shape", "folder"}}, isThere));
        m_dot.Edge(button, dialog, "DIALOG\n" + LineText(statement.span), Looks({}, isThere));
        AddGroup(statement, statement.values.empty() ? "" : statement.values.back());
        AddPart(statement, ValueAt(statement, 1));
    }

    void DrawAction(const ValueStatement& statement)
    {
        const std::string button = NodeOf(statement.name);
        m_dot.Edge(button, LibraryNode(ValueAt(statement, 0)),
                   "ACTION " + ToUtf8(ValueAt(statement, 1)) + "\n" + LineText(statement.span));
        AddGroup(statement, ValueAt(statement, 2));
        AddPart(statement, ValueAt(statement, 3));
    }

    void DrawFill(const ValueStatement& statement) { AddControl(statement, ValueAt(statement, 0), "FILL"); }

    void DrawDoubleClick(const ValueStatement& statement)
    {
        const std::string& target = statement.values.front();
        if (lytMeans<ClytValueWord::Ok>(CString(target.c_str())))
            m_dot.Edge(NodeOf(statement.name), GroupNode(lytParentName), "DBLCLICK: OK\n" + LineText(statement.span));
        else
            AddControl(statement, target, "DBLCLICK");
    }

    // The fourth value names the group that composes the parameter of the library.
    void DrawSource(const ValueStatement& statement)
    {
        const std::string control = NodeOf(statement.name);
        m_dot.Edge(control, LibraryNode(ValueAt(statement, 0)),
                   "FILLEDBY " + ToUtf8(ValueAt(statement, 1)) + "\n" + LineText(statement.span));
        if (!ValueAt(statement, 3).empty())
            AddGroup(statement, ValueAt(statement, 3));
    }

    // Fills of a part that ask a control's library.
    void DrawFills(const InputPart& part)
    {
        for (const ClytDialogInput& statement : part.part->GetStatements())
        {
            for (const ClytConditionFill& rule : statement.scanRule.rules)
                DrawFills(part, rule);
        }
    }

    void DrawFills(const InputPart& part, const ClytConditionFill& rule)
    {
        for (const ClytControlFill& fill : rule.fills)
        {
            if (fill.action.GetMeaning() != ClytFillAction::Fill)
                continue;
            const std::string name = fill.controlName.GetString();
            m_dot.Edge(PartNode(part.name), NodeOf(name), "FILL\n" + LineText(fill.span), Looks({}, HasControl(name)));
        }
    }

    void AddGroup(const ValueStatement& statement, const std::string& group)
    {
        m_dot.Edge(NodeOf(statement.name), GroupNode(group), "hands over\n" + LineText(statement.span),
                   Looks({}, HasGroup(group)));
    }

    void AddPart(const ValueStatement& statement, const std::string& part)
    {
        m_dot.Edge(NodeOf(statement.name), PartNode(part), "takes apart\n" + LineText(statement.span),
                   Looks({}, HasPart(part)));
    }

    void AddControl(const ValueStatement& statement, const std::string& target, const std::string& word)
    {
        m_dot.Edge(NodeOf(statement.name), NodeOf(target), word + "\n" + LineText(statement.span),
                   Looks({}, HasControl(target)));
    }

    std::string NodeOf(const std::string& control) { return ControlNode(m_dot, m_description, control.c_str()); }

    bool HasControl(const std::string& name) const { return m_description.FindControl(name) != nullptr; }

    bool HasGroup(const std::string& name) const
    {
        return std::ranges::find(m_description.outputs, name, &OutputGroup::name) != m_description.outputs.end();
    }

    bool HasPart(const std::string& name) const
    {
        return std::ranges::find(m_description.inputs, name, &InputPart::name) != m_description.inputs.end();
    }

    static Attributes Looks(Attributes own, bool isKnown)
    {
        if (!isKnown)
            own.insert(own.end(), UnknownLook().begin(), UnknownLook().end());
        return own;
    }

    std::string LibraryNode(const std::string& name)
    {
        std::string id = "library " + ToUtf8(name);
        m_dot.Node(id, ToUtf8(name), {{"shape", "component"}});
        return id;
    }

    std::string GroupNode(const std::string& name, const Attributes& more = {})
    {
        std::string id = "group " + ToUtf8(name);
        std::string label = "group " + ToUtf8(name);
        for (const OutputGroup& group : m_description.outputs)
        {
            if (group.name != name)
                continue;
            for (const ClytDialogOutput& rule : group.rules)
                label += (&rule == group.rules.GetHead() ? "\nline " : ", ") + std::to_string(rule.span.line);
        }
        Attributes looks = Looks({{"shape", "note"}}, HasGroup(name));
        looks.insert(looks.end(), more.begin(), more.end());
        m_dot.Node(id, HasGroup(name) ? label : label + "\nno such group", looks);
        return id;
    }

    std::string PartNode(const std::string& name, const Attributes& more = {})
    {
        std::string id = "part " + ToUtf8(name);
        const auto part = std::ranges::find(m_description.inputs, name, &InputPart::name);
        const bool isThere = part != m_description.inputs.end();
        Attributes looks = Looks({{"shape", "tab"}}, isThere);
        looks.insert(looks.end(), more.begin(), more.end());
        m_dot.Node(id, id + (isThere ? "\n" + LineText(part->header) : "\nno such part"), looks);
        return id;
    }

    // What has no node by now is used by nobody.
    void DrawUnused()
    {
        for (const OutputGroup& group : m_description.outputs)
            GroupNode(group.name, UnusedLook());
        for (const InputPart& part : m_description.inputs)
            PartNode(part.name, UnusedLook());
    }

    Dot m_dot;
    const Description& m_description;
    std::string m_folder;
};

} // namespace

std::string GroupsGraph(const std::string& title, const Description& description, const std::string& dialogFolder)
{
    return UseGraph(title, description, dialogFolder).Draw();
}

} // namespace lytdlg
