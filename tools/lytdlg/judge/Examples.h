// The wrong and right examples of the rules, as whole descriptions.
//
// An example is a few lines, put into a small description without findings:
//
//     $VALUES             the word of a section: the lines below it go there
//     Mark = HIDDEN
//     $INPUT, other       a header with more than its word, be it a blank, takes the place of the one that is there; a
//                         part or group of another name is opened at the end of its section
//     -Mark = HIDDEN      takes that line away
//     Begin ...           takes the place of the line that begins so; a statement of $INPUT that of the same name
//
// New controls come above OKButton (the part of the dialog from 500 to the right is free), new output rules above the ones
// that are there, other lines below. Lines above the first header begin the file; a first one such as `; lytRpGrp.dlg` is
// the file's name. {NUL}, {1A} and {A0} are these bytes, {LONG} is 400 blanks, {ABOVE} joins the line with the next one, and
// {CUT} is where the file ends.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

std::string ExampleDescription(const std::string& lines);
// Empty where nothing depends on the name of the file.
std::string ExampleName(const std::string& lines);

struct ExampleFile
{
    const char* name; // below the folder of the description
    const char* content;
};

// What is beside the description: texts for it, and a dialog that a button may open.
const std::vector<ExampleFile>& ExampleFiles();

} // namespace lytdlg
