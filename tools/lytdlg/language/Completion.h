// What can be written at a place of a text.
#pragma once

#include "lytdlg/language/FileWords.h"

namespace lytdlg
{

// By the numbers that editors have for what they offer.
enum class ProposalKind
{
    Text = 1,
    Control = 6, // as a variable
    Value = 12,
    Word = 14, // of the language
    Snippet = 15,
    File = 17,
    Name = 18 // of a statement, part, group, library or function; as a reference
};

struct Proposal
{
    ProposalKind kind = ProposalKind::Word;
    std::string label;
    std::string detail = {};
    std::string insert = {};
    bool isSnippet = false; // the text has places to fill
};

struct Proposals
{
    ClytSpan place = {}; // that the chosen one takes
    std::vector<Proposal> all = {};
};

// What can be written at a place of a text.
Proposals ProposalsAt(const Workspace& workspace, const std::string& path, const TextPosition& position);

// For an editor that cannot fill places in a text.
void RemoveSnippets(Proposals& proposals);

} // namespace lytdlg
