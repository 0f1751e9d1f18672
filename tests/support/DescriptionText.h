// The text of a description, section by section; what a test leaves out is as small as it can be.
#pragma once

#include <string>

struct DescriptionText
{
    std::string operator()() const
    {
        return "$VERSION 1\n$LAYOUT " + section + "\nBegin Dialog Box 200, 100, \"TITLE\", .Main\n" + layout +
               "End Dialog\n$VALUES\n" + values + "$DEPENDANCES\n" + dependencies + "$EVALUATION, x\n" + evaluation +
               "$INPUT\n" + input + "$OUTPUT\n" + output + "$END\n";
    }

    std::string layout = {};
    std::string values = {};
    std::string dependencies = {};
    std::string evaluation = {};
    std::string input = {};
    std::string output = {};
    std::string section = {}; // the operand of the layout header
};
