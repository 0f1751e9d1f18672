#include "lytdlg/serve/Session.h"

#include "commandline/Text.h"
#include "lytdlg/text/Uri.h"

namespace lytdlg
{

void Session::Notify(const char* method, Json params) const
{
    send({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}});
}

void Session::Publish(const std::set<std::string>& paths) const
{
    for (const std::string& path : paths)
    {
        const std::string uri = UriFor(path);
        Json found = Json::array();
        for (const Finding& finding : diagnostics.Of(path))
            found.push_back(JsonOf(finding, uri));
        Notify("textDocument/publishDiagnostics", {{"uri", uri}, {"diagnostics", std::move(found)}});
    }
}

bool Session::Can(const char* ability) const
{
    const Json::json_pointer place(ability);
    return abilities.contains(place) && abilities.at(place) == true;
}

std::string Session::UriFor(const std::string& path) const
{
    const auto open = uris.find(path);
    return open != uris.end() ? open->second : UriOf(path);
}

const Description& Session::DescriptionIn(const Json& params) const
{
    static const Description none("", "", {});
    const std::string path = PathIn(params);
    return KindOfText(path) == TextKind::Description ? workspace.DescriptionAt(path) : none;
}

Json WorkspaceEdit(const Session& session, const EditsByPath& edits)
{
    Json changes = Json::object();
    for (const auto& [path, list] : edits)
        changes[session.UriFor(path)] = list;
    return {{"changes", std::move(changes)}};
}

std::string PathIn(const Json& params)
{
    return PlainPath(PathOfUri(params.at("textDocument").at("uri").get<std::string>()));
}

Setup SetupIn(const Session& session, const Json& params)
{
    Setup setup{PathIn(params)};
    setup.input = commandline::ToAnsi(params.value("input", ""));
    setup.language = commandline::ToAnsi(params.value("language", ""));
    setup.defines = session.defines;
    const Json items = params.value("items", Json::object());
    for (const auto& [list, uri] : items.items())
        setup.items.push_back({commandline::ToAnsi(list), PlainPath(PathOfUri(uri.get<std::string>()))});
    return setup;
}

} // namespace lytdlg
