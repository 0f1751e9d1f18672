// What can be written at a place of a description.
#pragma once

#include "lytdlg/language/NamedWord.h"
#include "lytdlg/language/Workspace.h"

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

// The line counts from 1, the column from 0.
Proposals ProposalsAt(const Description& description, const Surroundings& surroundings, int line, int column);

// For an editor that cannot fill places in a text.
void RemoveSnippets(Proposals& proposals);

} // namespace lytdlg
