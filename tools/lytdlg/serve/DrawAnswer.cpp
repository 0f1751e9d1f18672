#include "commandline/Text.h"
#include "lytdlg/serve/Session.h"

namespace lytdlg
{

namespace
{

Json JsonOfControl(const DrawnControl& control, size_t number)
{
    const SeenControl& seen = control.seen;
    const Area& place = seen.place;
    Json items = Json::array();
    for (const SeenItem& item : seen.items)
        items.push_back(commandline::ToUtf8(item.text));
    return {{"target", seen.name.empty() ? "#" + std::to_string(number) : commandline::ToUtf8(seen.name)},
            {"type", commandline::ToUtf8(seen.type)},
            {"place", {{"x", place.left}, {"y", place.top}, {"width", place.width}, {"height", place.height}}},
            {"text", commandline::ToUtf8(seen.text)},
            {"value", control.state.value ? Json(commandline::ToUtf8(*control.state.value)) : Json()},
            {"items", std::move(items)},
            {"enabled", seen.isEnabled},
            {"shown", seen.isShown}};
}

} // namespace

void to_json(Json& json, const DrawnTrial& drawn)
{
    json = {{"svg", drawn.svg}, {"outcome", WordOf(drawn.outcome.ending)}};
    if (drawn.outcome.ending == Ending::Confirmed)
        json["result"] = commandline::ToUtf8(drawn.outcome.text);
    json["messages"] = Json::array();
    for (const std::string& message : drawn.messages)
        json["messages"].push_back(commandline::ToUtf8(message));
    Json& controls = json["controls"] = Json::array();
    for (const DrawnControl& control : drawn.controls)
    {
        if (control.seen.hasWindow)
            controls.push_back(JsonOfControl(control, controls.size() + 1));
    }
}

Json Draw(Session& session, const Json& params)
{
    std::string acts;
    for (const Json& act : params.value("acts", Json::array()))
        acts += act.get<std::string>() + "\n";
    const DrawnTrial drawn = DrawAfter(SetupIn(session, params), acts, params.value("dpi", 0));
    if (drawn.outcome.ending == Ending::NotOpened)
        throw std::runtime_error(
            "the library refuses the dialog: " +
            commandline::ToUtf8(drawn.outcome.failureNumber + ": " + drawn.outcome.failureMessage));
    return drawn;
}

} // namespace lytdlg
