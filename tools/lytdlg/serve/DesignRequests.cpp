// The requests that change a layout.
#include "commandline/Text.h"
#include "lytdlg/language/LayoutEdits.h"
#include "lytdlg/serve/Requests.h"

namespace lytdlg
{

using commandline::ToAnsi;

namespace
{

std::optional<int> NumberIn(const Json& json, const char* field)
{
    return json.contains(field) ? std::optional(json.at(field).get<int>()) : std::nullopt;
}

// Lines count from 0 in the protocol.
ControlPlace PlaceIn(const Json& json)
{
    return {json.value("line", -1) + 1, NumberIn(json, "x"), NumberIn(json, "y"), NumberIn(json, "width"),
            NumberIn(json, "height")};
}

std::vector<int> LinesIn(const Json& params)
{
    std::vector<int> lines;
    for (const Json& line : params.at("lines"))
        lines.push_back(line.get<int>() + 1);
    return lines;
}

} // namespace

Json PlaceControls(Session& session, const Json& params)
{
    std::vector<ControlPlace> places;
    for (const Json& place : params.at("places"))
        places.push_back(PlaceIn(place));
    return WorkspaceEdit(session,
                         {{PathIn(params), PlacingOf(session.DescriptionIn(params), places, params.value("dpi", 0))}});
}

Json AddControl(Session& session, const Json& params)
{
    const NewControl control = {ToAnsi(params.at("type").get<std::string>()), PlaceIn(params),
                                ToAnsi(params.value("name", "")), ToAnsi(params.value("text", "")),
                                params.value("after", -1) + 1};
    return WorkspaceEdit(session, AdditionOf(session.workspace, PathIn(params), control, params.value("dpi", 0)));
}

Json OrderControls(Session& session, const Json& params)
{
    return WorkspaceEdit(session, {{PathIn(params), OrderingOf(session.DescriptionIn(params), LinesIn(params))}});
}

Json RemoveControls(Session& session, const Json& params)
{
    return WorkspaceEdit(session, {{PathIn(params), RemovalOf(session.DescriptionIn(params), LinesIn(params))}});
}

} // namespace lytdlg
