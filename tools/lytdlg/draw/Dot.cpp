#include "lytdlg/draw/Dot.h"

#include "commandline/Text.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// Backslashes would begin escapes of that language.
std::string DotText(const std::string& utf8)
{
    std::string quoted = "\"";
    for (size_t start = 0; start <= utf8.size();)
    {
        const size_t end = std::min(utf8.find('\n', start), utf8.size());
        for (const char ch : commandline::Printable(utf8.substr(start, end - start)))
        {
            if (ch == '"' || ch == '\\')
                quoted += '\\';
            quoted += ch;
        }
        quoted += end < utf8.size() ? "\\n" : "\"";
        start = end + 1;
    }
    return quoted;
}

} // namespace

Dot::Dot(const std::string& title)
{
    m_text = "digraph " + DotText(title) + " {\n";
    Line("rankdir=LR; charset=\"utf-8\"; fontname=\"sans-serif\"; labelloc=t; label=" + DotText(title) + ";");
    Line("node [shape=box, fontname=\"sans-serif\"]; edge [fontname=\"sans-serif\", fontsize=10];");
}

void Dot::Node(const std::string& id, const std::string& label, const Attributes& more)
{
    if (m_nodes.insert(id).second)
        Write(DotText(id), label, more);
}

void Dot::Edge(const std::string& from, const std::string& to, const std::string& label, const Attributes& more)
{
    Write(DotText(from) + " -> " + DotText(to), label, more);
}

void Dot::BeginCluster(const std::string& id, const std::string& label)
{
    Line("subgraph " + DotText("cluster " + id) + " {");
    ++m_depth;
    Line("label=" + DotText(label) + ";");
}

void Dot::EndCluster()
{
    --m_depth;
    Line("}");
}

std::string Dot::Finish()
{
    return m_text + "}\n";
}

void Dot::Line(const std::string& text)
{
    m_text.append(m_depth * 2, ' ').append(text).append("\n");
}

void Dot::Write(const std::string& what, const std::string& label, const Attributes& more)
{
    std::string line = what + " [label=" + DotText(label);
    for (const Attribute& attribute : more)
        line += std::string(", ") + attribute.name + "=" + DotText(attribute.value);
    Line(line + "];");
}

const Attributes& UnknownLook()
{
    static const Attributes look = {{"color", "red"}, {"fontcolor", "red"}, {"style", "dashed"}};
    return look;
}

const Attributes& UnusedLook()
{
    static const Attributes look = {{"style", "dashed"}};
    return look;
}

std::string Shown(const CString& text)
{
    return commandline::Shown(text.GetString());
}

std::string ValuesText(const CStringList& values)
{
    std::string text;
    for (const CString& value : values)
        text += (text.empty() ? "(" : ", ") + (value.IsEmpty() ? std::string("\"\"") : Shown(value));
    return text.empty() ? text : text + ")";
}

std::string ControlNode(Dot& dot, const Description& description, const CString& name)
{
    std::string id = "control " + Shown(name);
    const ClytControlStatement* control = description.FindControl(name.GetString());
    if (control == nullptr)
        dot.Node(id, Shown(name) + "\nno such control", UnknownLook());
    else
        dot.Node(id, Shown(name) + "\n" + Shown(control->type) + ", " + LineText(control->span));
    return id;
}

} // namespace lytdlg
