// The sections of a description in their order, and how the lines of each are cut.
#pragma once

#include <cstddef>

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
// start where a header is found, so a header's words are cut as the words of the section before it.
struct ClytLineForm
{
    const char* delimiters;
    ClytSection end;
};

inline constexpr ClytLineForm lytLineForms[] = {
    {" ,\t\n();:", ClytSection::Layout},    {" ,\t\n();", ClytSection::Values},
    {" ,\t\n;", ClytSection::Values},       {"=,\t\n();:", ClytSection::Dependencies},
    {"=,\t\n()/", ClytSection::Evaluation}, {"=,\t\n():;", ClytSection::Input},
    {"=,\n():", ClytSection::Output},       {"=,\t\n():;", ClytSection::Output},
    {"=,\n():<>", ClytSection::End},
};

constexpr const ClytLineForm& lytFormOf(ClytLineKind kind)
{
    return lytLineForms[static_cast<size_t>(kind)];
}
