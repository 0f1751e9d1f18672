// The words of a line as the reader of its section takes them, with what ends each.
#pragma once

#include "lytdlg/judge/DescriptionText.h"

namespace lytdlg
{

struct LineToken
{
    std::string text; // without blanks and quotes round it
    int column = 0;
    char delimiter = '\n';
};

// Up to a quote that is not closed.
std::vector<LineToken> TokensOf(const std::string& line, Section section);

} // namespace lytdlg
