// What nodes and edges of all graphs say, in UTF-8.
#pragma once

#include "lytdlg/draw/Dot.h"
#include "lytdlg/judge/Description.h"

namespace lytdlg
{

std::string Shown(const CString& text);
// The values of a list, in brackets with commas; nothing for an empty list.
std::string ValuesText(const CStringList& values);
// The node of a control, red when there is no such control; gives the identifier of the node.
std::string ControlNode(Dot& dot, const Description& description, const CString& name);

} // namespace lytdlg
