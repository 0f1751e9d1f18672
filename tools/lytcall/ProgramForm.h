// The commands and options of lytcall.
#pragma once

#include "commandline/CommandLine.h"

namespace lytcall
{

using commandline::Request;

const commandline::ProgramForm& TheProgram();

} // namespace lytcall
