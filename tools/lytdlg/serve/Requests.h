// The requests that the protocol does not have: a dialog is played, and its layout changed. web/engine/README.md describes them.
#pragma once

#include "lytdlg/serve/Session.h"

namespace lytdlg
{

Json PlayDialog(Session& session, const Json& params);
Json ExplainControl(Session& session, const Json& params);
Json TellWay(Session& session, const Json& params);
Json RunCases(Session& session, const Json& params);
Json AddCase(Session& session, const Json& params);

Json PlaceControls(Session& session, const Json& params);
Json AddControl(Session& session, const Json& params);
Json OrderControls(Session& session, const Json& params);
Json RemoveControls(Session& session, const Json& params);

} // namespace lytdlg
