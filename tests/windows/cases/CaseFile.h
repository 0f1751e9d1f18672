// Whole dialogs as data: a description in the making, what a user does in the live window, and what is to be seen. What
// precedes the first case of a file belongs to each; a line is a word and its operand.
//
//     case: TEXT            begins a case. In all lines x{700} is 700 times x, and $folder is where the descriptions are
//     each: A ~ B | C ~ D   the case runs for each alternative; the columns of one are $1, $2, ... in all lines. There
//                           may be several such lines; those before the first case are for the cases without
//     rounds                the case is done a hundred times, and nothing may grow
//
//     layout LINE ; LINE    the lines of a section; so do values, rules, evaluation, input and output. A layout line
//                           `type name` gets its own place, and a caption that reads like the name
//     layout+ LINE ; LINE   further lines of it
//     takes FILL            an input section that hands the whole text to one control
//     dialog NAME           the sections that follow are of that further dialog; without a name, of the main one
//     plain                 the dialog has no OK and Cancel below its controls
//     text KEY=TEXT         of the language file
//     notexts               the language file has the title only
//     define NAMES          switches stretches of the descriptions on
//
//     open INPUT            opens the main dialog; steps and looks follow
//     in NAME               they are in that dialog, or in the message box lyt64; without a name, in the main one
//     message TEXT          a message box comes and is confirmed; \n is a line feed
//     result TEXT           the dialog was confirmed; changed TEXT, unchanged TEXT: with that answer
//     cancelled             it was cancelled, or failed
//
// Steps. What a step posts is handled before the next, but one that begins with `&` is taken together with the step before.
//
//     click NAME, press NAME, focus NAME      with the mouse; without it; the focus alone
//     select NAME I, choose NAME I            an item, and the dialog hears of it; and it does not
//     mark NAME I, point NAME I               a click on an item's mark; on its text
//     doubleclick NAME, doublemark NAME       the same twice, on the first item
//     type TEXT, enter NAME TEXT              into the focus; in place of what a field holds
//     key NAME, hold NAME, release NAME       a key
//     ok, cancel, close, end, destroy         the buttons, the frame, and ways in which no user ends a dialog
//     down NAME, up NAME, keyup NAME KEY      what a button hears
//     caption NAME TEXT, enable NAME, disable NAME, unfocus    what a host does, which tells the dialog nothing
//     command, command below                  a command of no meaning, to the dialog in front or to the one that it
//                                             belongs to: the rules run
//
// Looks begin with the name of a control, in the dialog in front or in the one that it belongs to: `NAME = TEXT`, `NAME
// items A / B`, `NAME selected I`, `NAME style HEX`, `NAME kind HEX` for the class's part of it, `NAME class WORD`, `NAME
// id NUMBER`, `NAME fits TEXT` for its size, or a word: enabled, disabled, shown, hidden, checked,
// unchecked, focused, unfocused, released, tabstop, skipped, group, member, sunken, default. `cursor arrow` and `cursor wait`
// look at the cursor.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

struct CaseLine
{
    int number = 0;
    std::string text;
};

using CaseLines = std::vector<CaseLine>;

struct Case
{
    std::string file;
    std::string name; // unique in its file, without blanks
    CaseLines lines;
    bool hasRounds = false;
};

std::vector<Case> ReadCases(const std::string& path);
// All cases of files with bars between their paths.
std::vector<Case> CasesOf(const std::string& paths);

// GoogleTest prints it where a test fails.
inline void PrintTo(const Case& one, std::ostream* stream)
{
    *stream << one.name;
}

// The name of its test.
inline std::string NameOfCase(const testing::TestParamInfo<Case>& one)
{
    return one.param.file + "_" + one.param.name;
}
