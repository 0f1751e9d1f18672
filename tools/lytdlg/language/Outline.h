// What an editor shows of a text as a whole: its parts in a tree, and what can be folded.
#pragma once

#include "lytdlg/language/Workspace.h"

namespace lytdlg
{

// By the numbers that editors have for symbols.
enum class SymbolKind
{
    Header = 3,    // as a namespace
    Statement = 6, // of the input; as a method
    Control = 8,   // as a field
    Text = 15,     // of a language file; as a string
    Check = 24     // as an event
};

struct Symbol
{
    SymbolKind kind = SymbolKind::Header;
    std::string name;
    std::string detail;
    ClytSpan place;
    int lastLine = 0;
    std::vector<Symbol> inner = {};
};

// A section of a description or a language file, or a case.
std::vector<Symbol> OutlineOf(const Workspace& workspace, const std::string& path);

// Lines of the file, from 1.
struct Fold
{
    int first = 0;
    int last = 0;
};

// The same, and the lines that a define switches.
std::vector<Fold> FoldsOf(const Workspace& workspace, const std::string& path);

} // namespace lytdlg
