// What can be written at a place of a description.
#pragma once

#include "lytdlg/language/NamedWord.h"
#include "lytdlg/language/Workspace.h"

namespace lytdlg
{

enum class ProposalKind
{
    Word, // of the language
    Control,
    Value,
    Text,
    Name, // of a statement, part, group, library or function
    File,
    Snippet
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
    ClytSpan place; // that the chosen one takes
    std::vector<Proposal> all;
};

// The line counts from 1, the column from 0.
Proposals ProposalsAt(const Description& description, const Surroundings& surroundings, int line, int column);

} // namespace lytdlg
