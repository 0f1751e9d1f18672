// What the answers to an editor share, and the table of them.
#pragma once

#include "lytdlg/language/Diagnostics.h"
#include "lytdlg/serve/ProtocolJson.h"

#include <functional>

namespace lytdlg
{

// The command that judges every description of a folder, whose address is its argument.
inline constexpr const char* checkFolderCommand = "lytdlg.checkFolder";

struct Session
{
    enum class State
    {
        New,
        Ready,
        ShutDown
    };

    void Notify(const char* method, Json params) const;
    // Sends the findings in the files.
    void Publish(const std::set<std::string>& paths) const;
    // Whether the client tells of an ability, such as "/workspace/applyEdit".
    bool Can(const char* ability) const;
    std::string UriFor(const std::string& path) const;
    // Of the description that a request is about, or one without lines.
    const Description& DescriptionIn(const Json& params) const;

    const std::function<void(const Json& message)> send;
    const std::vector<std::string> defines;
    Workspace workspace;
    Diagnostics diagnostics{workspace};
    std::map<std::string, std::string> uris = {}; // of the open texts, as the client has them
    Json abilities = {};                          // of the client
    State state = State::New;
    bool isOver = false;
};

Json WorkspaceEdit(const Session& session, const EditsByPath& edits);
// What a request is about: the path of its text, and what it tries that dialog with.
std::string PathIn(const Json& params);
Setup SetupIn(const Session& session, const Json& params);

// A method of the protocol, what answers it, and what the client is promised about it.
struct Method
{
    const char* name;
    Json (*answer)(Session& session, const Json& params);
    const char* capability = nullptr;
    Json promised = true;
};
const std::vector<Method>& Methods();

} // namespace lytdlg
