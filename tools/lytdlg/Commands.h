// The commands of lytdlg: a row of one table each, and what carries it out.
#pragma once

#include "commandline/CommandLine.h"

namespace lytdlg
{

using commandline::Request;

// What a command ends with. A command line that cannot be understood is a UsageError.
enum ExitCode
{
    good = 0,
    found = 1, // findings, differences, a dialog that was refused
    notUnderstood = 2
};

struct Command
{
    commandline::CommandForm form;
    ExitCode (*run)(const Request& request);
};

Command CheckCommand();
Command RunCommand();
Command ScanCommand();
Command ComposeCommand();
Command RoundtripCommand();
Command WhyCommand();
Command TestCommand();
Command FmtCommand();
Command TextsCommand();
Command NewCommand();
Command PreviewCommand();
Command GraphCommand();
Command DoctorCommand();
Command LspCommand();

// Every command, in the order of the help.
const std::vector<Command>& Commands();
const commandline::ProgramForm& TheProgram();

// Prints an error line, after all that was printed.
void TellError(const std::string& text);

// Carries a command line out, without the program's name, and gives the exit code.
int Run(const std::vector<std::string>& words);

} // namespace lytdlg
