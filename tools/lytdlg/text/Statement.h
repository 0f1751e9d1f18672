// One statement of a description as a text: its words, and the one form that it is laid out in.
#pragma once

#include "base/DelimiterSet.h"
#include "lytdlg/text/DescriptionLines.h"

#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// A word as it is written, without its quotes; the blanks within them are there.
struct Word
{
    std::string text;
    bool isQuoted = false;
    char delimiter = '\n';

    // Nothing before the delimiter.
    bool IsBare(char endedBy) const { return delimiter == endedBy && text.empty() && !isQuoted; }
};

struct Statement
{
    std::vector<Word> words;
    std::string comment; // from its `;` on, without the blanks at its end
    size_t commentColumn = 0;
};

// Cuts a line into its words. Nothing where a quote stays open, and where there is something that no reader sees.
std::optional<Statement> CutStatement(const std::string& line, ClytLineKind kind);

// The statement without its comment, indented. Nothing where the section has no form for it.
std::optional<std::string> LaidOut(const Statement& statement, ClytLineKind kind);

// True when the readers of the section find the same in both lines.
bool ReadsAlike(const std::string& left, const std::string& right, ClytLineKind kind);

// True for the line of a section, or of the dialog itself and its end: it begins at the margin.
bool IsHeading(const Statement& statement, ClytLineKind kind);

} // namespace lytdlg
