// What is said of a place in a text.
#pragma once

#include "lytdlg/language/Diagnostics.h"
#include "lytdlg/language/FileWords.h"

namespace lytdlg
{

struct HoverText
{
    NamedWord word;   // that it is about, if any
    std::string text; // in Markdown, in UTF-8; empty for nothing
};

HoverText HoverAt(const Workspace& workspace, const Diagnostics& diagnostics, const std::string& path,
                  const TextPosition& position);

// What is known of a word: in Markdown, in the code page. Empty for nothing.
std::string ExplanationOf(const Workspace& workspace, const NamedWord& word);

} // namespace lytdlg
