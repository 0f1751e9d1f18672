// What a user does to a dialog, as a command line, a script or a case file says it.
#pragma once

#include "commandline/CommandLine.h"
#include "lytdlg/try/LineReader.h"

#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

enum class ActKind
{
    Set,         // a control to a value
    Press,       // a button
    DoubleClick, // a list
    Mark,        // an item of a check list
    Unmark,
    Ok, // of the dialog on top
    Cancel
};

// Texts are in the code page of the dialogs.
struct Act
{
    ActKind kind = ActKind::Ok;
    std::string name = {};
    std::string value = {};
    std::string place = {}; // "file:line:column: error: " for one of a file, empty for one of the command line
};

// As a script has it, in UTF-8.
std::string Describe(const Act& act);

// The options that are acts, and what a command lists of them in its form.
const std::vector<commandline::OptionForm>& ActOptions();
// Every act of the command line, in its order; those of a script stand where the script is named.
std::vector<Act> ActsOf(const commandline::Request& request);

// The words that begin an act in a script or a case file.
const std::vector<std::string>& ActWords();
// Reads what follows such a word; nothing when the word begins no act.
std::optional<Act> ReadAct(const std::string& word, LineReader& line);

} // namespace lytdlg
