// What a user does to a dialog: steps of the language of scripts, given as options or in files.
#pragma once

#include "commandline/CommandLine.h"
#include "script/Script.h"

#include <vector>

namespace lytdlg
{

// The options that are acts, and what a command lists of them in its form.
const std::vector<commandline::OptionForm>& ActOptions();
// Every act of the command line, in its order; those of a script stand where the script is named.
std::vector<script::Step> ActsOf(const commandline::Request& request);

} // namespace lytdlg
