// Writes graphs of a description in the language of Graphviz.
#pragma once

#include "lytdlg/draw/Markup.h"
#include "lytdlg/judge/Description.h"

#include <set>

namespace lytdlg
{

class Dot
{
public:
    explicit Dot(const std::string& title);

    // A node is written once, as it is first given. Texts are in UTF-8; the lines of a label are separated by line feeds.
    void Node(const std::string& id, const std::string& label, const Attributes& more = {});
    void Edge(const std::string& from, const std::string& to, const std::string& label, const Attributes& more = {});
    void BeginCluster(const std::string& id, const std::string& label);
    void EndCluster();
    std::string Finish();

private:
    void Line(const std::string& text);
    void Write(const std::string& what, const std::string& label, const Attributes& more);

    std::string m_text;
    std::set<std::string> m_nodes;
    size_t m_depth = 1;
};

// How mistakes and things that never happen are drawn.
const Attributes& UnknownLook();
const Attributes& UnusedLook();

std::string Shown(const CString& text);
// The values of a list, in brackets with commas; nothing for an empty list.
std::string ValuesText(const CStringList& values);
// The node of a control, red when there is no such control; returns the identifier of the node.
std::string ControlNode(Dot& dot, const Description& description, const CString& name);

// Graphs of a description: its dependency rules, the states of its scan, and what uses its output groups.
// `title` is in UTF-8.
std::string RulesGraph(const std::string& title, const Description& description);
std::string ScanGraph(const std::string& title, const Description& description);
// `dialogFolder` is where the nested dialogs are.
std::string GroupsGraph(const std::string& title, const Description& description, const std::string& dialogFolder);

} // namespace lytdlg
