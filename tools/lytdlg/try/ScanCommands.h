// lytdlg scan, compose and roundtrip: how a dialog takes a text apart and puts one together.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command ScanCommand();
Command ComposeCommand();
Command RoundtripCommand();

} // namespace lytdlg
