// What an editor shows of a description as a whole: its parts in a tree, and what can be folded.
#pragma once

#include "lytdlg/judge/Description.h"
#include "lytdlg/language/EditorText.h"

namespace lytdlg
{

// By the numbers that editors have for symbols.
enum class SymbolKind
{
    Header = 3,    // as a namespace
    Statement = 6, // of the input; as a method
    Control = 8,   // as a field
    Check = 24     // as an event
};

struct Symbol
{
    SymbolKind kind = SymbolKind::Header;
    std::string name;
    std::string detail;
    ClytSpan place; // of its line
    int lastLine = 0;
    std::vector<Symbol> inner;
};

// A section, or a part of one, for each header.
std::vector<Symbol> OutlineOf(const Description& description);

// Lines of the file, from 1.
struct Fold
{
    int first = 0;
    int last = 0;
};

// The same, and the lines that a define switches.
std::vector<Fold> FoldsOf(const Description& description);

} // namespace lytdlg
