#include "lytdlg/draw/GraphTexts.h"

#include "commandline/Text.h"
#include "lytdlg/text/Words.h"

namespace lytdlg
{

std::string Shown(const CString& text)
{
    return commandline::Shown(text.GetString());
}

std::string ValuesText(const CStringList& values)
{
    std::string text;
    for (POSITION place = values.GetHeadPosition(); place != nullptr;)
    {
        const CString& value = values.GetNext(place);
        text += (text.empty() ? "(" : ", ") + (value.IsEmpty() ? std::string("\"\"") : Shown(value));
    }
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
