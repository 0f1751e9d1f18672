// The commands: each calls its functions of the library and prints what comes back.
#pragma once

#include "commandline/CommandLine.h"

namespace lytcall
{

using commandline::Request;

class Session;

const commandline::ProgramForm& TheProgram();

// Runs the command of the session; the last call's result decides whether it counts as failed. Raises CallError and
// script::FileError.
int RunCommand(const Session& session);

// The report, which has a separate source.
int RunReport(const Session& session);
// Prints what differs between two saved reports; false when a line does that does not differ from run to run. It needs no
// library.
bool CompareSavedReports(const Request& request);
// Prints a saved report without its names, or writes it where --out says; false when the operand names no file. It needs no
// library either.
bool RedactSavedReport(const Request& request);
// Lets lytdlg check a deployment, with the same words, and returns its exit code. Raises CallError when it cannot be run.
int RunDoctor(const std::vector<std::string>& words);

} // namespace lytcall
