// The language server: takes messages of the protocol and sends others. It writes no file, and no message ends it but "exit".
#pragma once

#include "lytdlg/serve/Session.h"

#include <deque>

namespace lytdlg
{

class Server
{
public:
    Server(std::function<void(const Json& message)> send, const std::vector<std::string>& partners,
           const std::vector<std::string>& defines)
        : m_session{std::move(send), defines, Workspace(partners, defines)}
    {
    }

    // Takes a message as it came. It is answered by Work, unless it is cancelled before.
    void Receive(const std::string& text);
    bool HasWork() const { return !m_waiting.empty() || m_session.diagnostics.IsWaiting(); }
    // Whether the next piece of work is more than trying a dialog for what is wrong with it.
    bool IsUrgent() const { return !m_waiting.empty() || m_session.diagnostics.IsReading(); }
    // Answers the first message that waits. Without one, judges a text that has changed, unless it is given up.
    void Work(const GiveUpQuestion& isGivenUp = {});
    bool IsOver() const { return m_session.isOver; }
    // Whether the end was announced, as it should be.
    bool WasShutDown() const { return m_session.state == Session::State::ShutDown; }

private:
    void Cancel(const Json& id);
    void Answer(const Json& message);
    void Judge(const GiveUpQuestion& isGivenUp);
    Json ResultOf(const std::string& method, const Json& params);
    void ReplyError(const Json& id, int code, const std::string& message) const;

    Session m_session;
    std::deque<Json> m_waiting;
};

} // namespace lytdlg
