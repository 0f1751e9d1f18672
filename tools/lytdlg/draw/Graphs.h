// Graphs of a description, in the language of Graphviz: its dependency rules, the states of its scan, and who uses its
// output groups.
#pragma once

#include "lytdlg/judge/Description.h"

namespace lytdlg
{

// `title` is in UTF-8.
std::string RulesGraph(const std::string& title, const Description& description);
std::string ScanGraph(const std::string& title, const Description& description);
// `dialogFolder` is where the nested dialogs are.
std::string GroupsGraph(const std::string& title, const Description& description, const std::string& dialogFolder);

} // namespace lytdlg
