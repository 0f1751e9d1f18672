// graph: how the parts of a description depend on one another, as a graph.
#pragma once

#include "lytdlg/Commands.h"

namespace lytdlg
{

Command GraphCommand();

} // namespace lytdlg
