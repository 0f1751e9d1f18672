// The sections of a description in their order, and how the lines of each are cut.
#pragma once

#include "base/DelimiterSet.h"

// Each section opens with its word, except the head: that is all above the layout, and must hold its word.
enum class ClytSection
{
    Head,
    Layout,
    Values,
    Dependencies,
    Evaluation,
    Input,
    Output,
    End
};

inline constexpr const char* lytSectionWords[] = {"$VERSION",    "$LAYOUT", "$VALUES", "$DEPENDANCES",
                                                  "$EVALUATION", "$INPUT",  "$OUTPUT", "$END"};

constexpr const char* lytWordOf(ClytSection section)
{
    return lytSectionWords[static_cast<size_t>(section)];
}

// What a line is read as.
enum class ClytLineKind
{
    Header, // up to the layout line
    Dialog, // up to the line of the dialog itself
    Controls,
    Values,
    Dependencies,
    Evaluation,
    FirstInput, // the line after a header of an input part
    Input,
    Output
};

// What separates the words of a line, and the section whose header ends the lines of that kind. Readers of other sections
// start where a header is found, so a header's words are cut as those of the section before it.
struct ClytLineForm
{
    DelimiterSet delimiters;
    ClytSection end;
};

inline constexpr ClytLineForm lytLineForms[] = {
    {DelimiterSet(" ,\t\n();:"), ClytSection::Layout},    {DelimiterSet(" ,\t\n();"), ClytSection::Values},
    {DelimiterSet(" ,\t\n;"), ClytSection::Values},       {DelimiterSet("=,\t\n();:"), ClytSection::Dependencies},
    {DelimiterSet("=,\t\n()/"), ClytSection::Evaluation}, {DelimiterSet("=,\t\n():;"), ClytSection::Input},
    {DelimiterSet("=,\n():"), ClytSection::Output},       {DelimiterSet("=,\t\n():;"), ClytSection::Output},
    {DelimiterSet("=,\n():<>"), ClytSection::End},
};

constexpr const ClytLineForm& lytFormOf(ClytLineKind kind)
{
    return lytLineForms[static_cast<size_t>(kind)];
}
