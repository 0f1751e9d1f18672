// The words of a statement, and what is wrong with its form.
#pragma once

#include "dlgfile/ErrorSink.h"
#include "lytdlg/judge/DescriptionText.h"

namespace lytdlg
{

// A word of a line as the reader of its section takes it, with what ends it.
struct LineToken
{
    std::string text; // without blanks and quotes round it
    int column = 0;
    char delimiter = '\n';
};

// Up to a quote that is not closed.
std::vector<LineToken> TokensOf(const std::string& line, Section section);

// Where a comment begins, which is where a word could begin; the end of the line without one. Quotes hold no comment.
size_t EndOfStatement(const SourceLine& line);

// What is wrong with the form of a statement, in words. The column is where the reader gave up: a word, or the end of the
// line.
std::string WhatIsWrong(const std::string& line, Section section, int column, ClytDue due);

} // namespace lytdlg
