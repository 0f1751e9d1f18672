// The requests that play a dialog: how it is then, why, and the way of its text in and out.
#include "commandline/Text.h"
#include "controls/TypeWords.h"
#include "lytdlg/language/CaseEdits.h"
#include "lytdlg/language/Places.h"
#include "lytdlg/serve/Requests.h"
#include "lytdlg/text/Uri.h"
#include "lytdlg/try/CaseRun.h"

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

Json AreaJson(const Area& area)
{
    return {{"x", area.left}, {"y", area.top}, {"width", area.width}, {"height", area.height}};
}

// The statement that begins in a line, as a range; null for 0, which is no line.
Json RangeJson(const Description& description, int line)
{
    return line > 0 ? Json(RangeOf(description.PlaceOf(line))) : Json();
}

Json ItemsJson(const SeenControl& seen, const ControlState* state)
{
    Json items = Json::array();
    for (size_t index = 0; index < seen.items.size(); ++index)
    {
        const bool hasValue = state != nullptr && index < state->items.size();
        items.push_back({{"text", ToUtf8(seen.items[index].text)},
                         {"value", ToUtf8(hasValue ? state->items[index].value : seen.items[index].text)},
                         {"marked", seen.items[index].isMarked}});
    }
    for (const SeenNode& node : seen.nodes)
        items.push_back({{"text", ToUtf8(node.text)},
                         {"path", ToUtf8(node.path)},
                         {"level", node.level},
                         {"open", node.isOpen},
                         {"hasInner", node.hasInner}});
    return items;
}

int ChosenOf(const SeenControl& seen)
{
    const auto node =
        std::find_if(seen.nodes.begin(), seen.nodes.end(), [](const SeenNode& one) { return one.isChosen; });
    return node != seen.nodes.end() ? static_cast<int>(node - seen.nodes.begin()) : seen.chosen;
}

Json ControlJson(const PlayedWindow& window, size_t index, int number, const Description* description)
{
    const SeenControl& seen = window.seen.controls[index];
    const ControlState* state = description != nullptr ? &window.state.controls[index] : nullptr;
    const bool isNamed = state != nullptr && window.isNamed[index];
    const bool isSeen = state == nullptr || seen.hasWindow;
    const bool isFree = lytTypeOf(seen.type).kind == ClytKind::Combo && seen.field.width > 0;
    return {{"target", isNamed          ? ToUtf8(seen.name)
                       : seen.hasWindow ? "#" + std::to_string(number)
                                        : ""},
            {"type", ToUtf8(seen.type)},
            {"place", seen.hasWindow ? AreaJson(seen.place) : Json()},
            {"inside", AreaJson(seen.inside)},
            {"field", isFree ? AreaJson(seen.field) : Json()},
            {"text", ToUtf8(seen.text)},
            {"value", state != nullptr && state->value ? Json(ToUtf8(*state->value)) : Json()},
            {"items", ItemsJson(seen, state)},
            {"chosen", ChosenOf(seen)},
            {"topItem", seen.topItem},
            {"itemHeight", seen.firstItem.height},
            {"checked", seen.isChecked},
            {"enabled", isSeen ? seen.isEnabled : state->isEnabled},
            {"shown", isSeen ? seen.isShown : state->isShown},
            {"focus", seen.hasFocus},
            {"default", seen.isDefault},
            {"tab", seen.tabNumber},
            {"selection", {seen.selectedFrom, seen.selectedTo}},
            {"group", state == nullptr || window.groups[index].empty() ? Json() : Json(ToUtf8(window.groups[index]))},
            {"range", description != nullptr ? RangeJson(*description, seen.line) : Json()}};
}

Json WindowJson(const PlayedWindow& window, const Description* description, const std::string& uri)
{
    const SeenDialog& seen = window.seen;
    Json json = {{"kind", description != nullptr ? "dialog" : "window"},
                 {"title", ToUtf8(seen.title)},
                 {"width", seen.width},
                 {"height", seen.height},
                 {"client", AreaJson(seen.client)},
                 {"dpi", seen.pixelsPerInch},
                 {"textHeight", seen.textHeight}};
    if (description != nullptr)
    {
        json["uri"] = uri;
        json["scale"] = {{"x", window.scaleX}, {"y", window.scaleY}};
    }
    json["controls"] = Json::array();
    int number = 0;
    for (size_t index = 0; index < seen.controls.size(); ++index)
    {
        number += seen.controls[index].hasWindow ? 1 : 0;
        json["controls"].push_back(ControlJson(window, index, number, description));
    }
    return json;
}

Json ConditionsJson(const std::vector<TestedCondition>& conditions)
{
    Json json = Json::array();
    for (const TestedCondition& condition : conditions)
    {
        const bool holds = condition.result == ClytTested::Holds || condition.result == ClytTested::HasContent ||
                           condition.result == ClytTested::Changed;
        json.push_back({{"text", condition.text}, {"holds", holds}});
    }
    return json;
}

Play PlayIn(const Session& session, const Json& params)
{
    return {SetupIn(session, params), params.value("acts", std::vector<std::string>()), params.value("dpi", 0)};
}

// Of the scan that the dialog opens with.
Json StepsJson(const PlayedWay& way, const Description& description)
{
    Json steps = Json::array();
    for (size_t index = 0; index < way.steps.size(); ++index)
    {
        const ScanStep& step = way.steps[index];
        Json fills = Json::array();
        for (const FillRecord& fill : way.fills)
        {
            if (fill.step == index)
                fills.push_back({{"target", ToUtf8(fill.control)},
                                 {"range", RangeJson(description, fill.line)},
                                 {"text", fill.text}});
        }
        steps.push_back({{"begin", step.begin},
                         {"end", step.end},
                         {"next", step.restAt},
                         {"statement", ToUtf8(step.name)},
                         {"range", RangeJson(description, step.line)},
                         {"follower", ToUtf8(step.next)},
                         {"fills", std::move(fills)}});
    }
    return steps;
}

Json OutputJson(const Description& description, const ComposedOutput& output)
{
    Json pieces = Json::array();
    for (const TripItem& item : output.items)
        pieces.push_back({{"begin", item.begin},
                          {"end", item.end},
                          {"target", item.isControl ? Json(ToUtf8(item.name)) : Json()},
                          {"range", RangeOf(item.span)}});
    Json refusals = Json::array();
    for (size_t index = 0; index < output.refused.refusals.size(); ++index)
        refusals.push_back({{"range", RangeJson(description, output.refused.refusedLines[index])},
                            {"text", output.refused.refusals[index].text}});
    return {{"result", output.line > 0 ? Json(ToUtf8(output.text)) : Json()},
            {"rule", RangeJson(description, output.line)},
            {"pieces", std::move(pieces)},
            {"refusals", std::move(refusals)}};
}

} // namespace

Json PlayDialog(Session& session, const Json& params)
{
    const PlayedTrial played = PlayAndSee(PlayIn(session, params), params.value("svg", false));
    const Outcome& outcome = played.outcome;
    Json json = {{"outcome", WordOf(outcome.ending)}};
    if (outcome.ending == Ending::Confirmed)
        json["result"] = ToUtf8(outcome.text);
    if (outcome.ending == Ending::NotOpened)
        json["failure"] = {{"number", outcome.failureNumber},
                           {"message", ToUtf8(outcome.failureMessage)},
                           {"line", outcome.failureLine > 0 ? Json(outcome.failureLine - 1) : Json()}};
    if (played.failed)
        json["failed"] = {{"act", played.failed->act}, {"reason", played.failed->reason}};
    json["messages"] = Json::array();
    for (const PlayedMessage& message : played.messages)
        json["messages"].push_back({{"act", message.act}, {"text", ToUtf8(message.text)}});
    json["dialogs"] = Json::array();
    for (const PlayedWindow& window : played.windows)
    {
        const Description* description =
            window.path.empty() ? nullptr : &session.workspace.DescriptionAt(PlainPath(window.path));
        json["dialogs"].push_back(WindowJson(window, description, session.UriFor(PlainPath(window.path))));
        if (!window.svg.empty())
            json["svg"] = window.svg;
    }
    return json;
}

Json ExplainControl(Session& session, const Json& params)
{
    const std::string target = params.at("target").get<std::string>();
    const Description& description = session.DescriptionIn(params);
    Json json = {{"sentences", Json::array()}, {"rules", Json::array()}};
    const auto explain = [&](const TrialRun& run)
    {
        TrialDialog* top = run.trial.Top();
        if (top == nullptr)
            throw ActError("no described dialog is left to look at");
        ClytControl& control = ControlOfTarget(*top, target);
        const bool isHere = top == run.trial.Open().front();
        const auto placeOf = [&](int line) { return RangeJson(description, isHere ? line : 0); };
        for (const Sentence& sentence : Explain(*top, control, run.recorder))
            json["sentences"].push_back({{"text", sentence.text}, {"range", placeOf(sentence.line)}});
        for (const TriedRule& rule : RulesAbout(*top, control, run.recorder))
            json["rules"].push_back({{"range", placeOf(rule.record.line)},
                                     {"word", ToUtf8(rule.record.word)},
                                     {"holds", rule.record.isOn},
                                     {"decides", rule.decides},
                                     {"conditions", ConditionsJson(rule.record.conditions)}});
    };
    const PlayedTrial played = PlayActs(PlayIn(session, params), explain);
    if (played.failed)
        throw std::runtime_error(played.failed->reason);
    return json;
}

Json TellWay(Session& session, const Json& params)
{
    const Play play = PlayIn(session, params);
    const Description& description = session.DescriptionIn(params);
    const PlayedWay way = PlayWay(play);
    Json steps = StepsJson(way, description);
    const size_t read = way.steps.empty() ? 0 : way.steps.back().restAt;
    const size_t size = play.setup.input.size();
    Json json = {{"input", ToUtf8(play.setup.input)},
                 {"steps", std::move(steps)},
                 {"rest", read < size ? Json{{"begin", read}, {"end", size}} : Json()}};
    json.update(OutputJson(description, way.output));
    return json;
}

Json RunCases(Session& session, const Json& params)
{
    const bool isRun = params.value("run", true);
    Json cases = Json::array();
    for (const GoldenCase& one : CasesOf(session.workspace, PathIn(params)))
    {
        const std::string path = PlainPath(one.file);
        const auto rangeOf = [](int line) { return Json(RangeOf(ClytSpan{std::max(1, line), 0, 0})); };
        Json acts = Json::array();
        for (const CaseStep& step : one.steps)
        {
            if (step.isAct)
                acts.push_back(Describe(step.act));
        }
        Json items = Json::object();
        for (const ItemsOption& list : one.setup.items)
            items[ToUtf8(list.control)] = session.UriFor(PlainPath(list.file));
        cases.push_back({{"name", one.name},
                         {"uri", session.UriFor(path)},
                         {"range", rangeOf(one.line)},
                         {"input", ToUtf8(one.setup.input)},
                         {"language", ToUtf8(one.setup.language)},
                         {"items", std::move(items)},
                         {"acts", std::move(acts)}});
        if (!isRun)
            continue;
        Json differences = Json::array();
        for (const Difference& difference : RunCase(one).differences)
            differences.push_back(
                {{"range", rangeOf(difference.line)}, {"expected", difference.expected}, {"got", difference.got}});
        cases.back()["passed"] = differences.empty();
        cases.back()["differences"] = std::move(differences);
    }
    return {{"cases", std::move(cases)}};
}

Json AddCase(Session& session, const Json& params)
{
    return WorkspaceEdit(session,
                         AddedCase(session.workspace, PlayIn(session, params), params.at("name").get<std::string>()));
}

} // namespace lytdlg
