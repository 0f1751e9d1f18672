#include "lytdlg/serve/Server.h"

#include <afx.h>

#include <algorithm>

namespace lytdlg
{

namespace
{

// The numbers of the protocol.
enum ProtocolError
{
    parseError = -32700,
    invalidRequest = -32600,
    methodNotFound = -32601,
    invalidParams = -32602,
    internalError = -32603,
    serverNotInitialized = -32002,
    requestCancelled = -32800,
    requestFailed = -32803
};

// Why an act has failed.
struct Failure : std::runtime_error
{
    Failure(ProtocolError number, const std::string& message) : runtime_error(message), code(number) {}
    ProtocolError code;
};

template <class ACT>
std::optional<Failure> FailureOf(ACT act)
{
    try
    {
        act();
        return std::nullopt;
    }
    catch (const Failure& failure)
    {
        return failure;
    }
    catch (const Json::exception& failure)
    {
        return Failure(invalidParams, failure.what());
    }
    catch (const std::runtime_error& failure)
    {
        return Failure(requestFailed, failure.what());
    }
    catch (const std::exception& failure)
    {
        return Failure(internalError, failure.what());
    }
    catch (CException* failure)
    {
        CString reason;
        failure->GetErrorMessage(reason.GetBuffer(1024), 1024);
        reason.ReleaseBuffer();
        failure->Delete();
        return Failure(internalError, reason.GetString());
    }
}

// Of a field of a message; null for one that is not there.
const Json& FieldOf(const Json& message, const char* field)
{
    static const Json none;
    const auto found = message.is_object() ? message.find(field) : message.end();
    return found != message.end() ? *found : none;
}

std::string MethodOf(const Json& message)
{
    const Json& method = FieldOf(message, "method");
    return method.is_string() ? method.get<std::string>() : "";
}

// A request has an identity, and is answered with it; a notification has none.
bool IsIdentity(const Json& id)
{
    return id.is_string() || id.is_number_integer();
}

} // namespace

void Server::Receive(const std::string& text)
{
    Json message = Json::parse(text, nullptr, false);
    const bool isRequest = message.is_object() && message.contains("id");
    if (message.is_discarded())
        ReplyError(nullptr, parseError, "the message is no JSON");
    else if (!message.is_object() || (isRequest && !IsIdentity(message["id"])))
        ReplyError(nullptr, invalidRequest, "the message is no request");
    else if (MethodOf(message) == "$/cancelRequest")
        Cancel(FieldOf(FieldOf(message, "params"), "id"));
    else if (!MethodOf(message).empty())
        m_waiting.push_back(std::move(message));
    else if (isRequest && !message.contains("result") && !message.contains("error"))
        ReplyError(message["id"], invalidRequest, "the request names no method");
}

// A request that is being answered is no longer waiting, and its answer goes out.
void Server::Cancel(const Json& id)
{
    const auto isMeant = [&](const Json& request) { return IsIdentity(id) && FieldOf(request, "id") == id; };
    const auto waiting = std::ranges::find_if(m_waiting, isMeant);
    if (waiting == m_waiting.end())
        return;
    ReplyError(id, requestCancelled, "the request was cancelled");
    m_waiting.erase(waiting);
}

void Server::Work(const GiveUpQuestion& isGivenUp)
{
    if (m_waiting.empty())
    {
        Judge(isGivenUp);
        return;
    }
    const Json message = std::move(m_waiting.front());
    m_waiting.pop_front();
    Answer(message);
}

void Server::Judge(const GiveUpQuestion& isGivenUp)
{
    constexpr int asError = 1;
    const std::optional<Failure> failure =
        FailureOf([&] { m_session.Publish(m_session.diagnostics.JudgeNext(isGivenUp)); });
    if (failure)
        m_session.Notify("window/logMessage", {{"type", asError}, {"message", failure->what()}});
}

void Server::Answer(const Json& message)
{
    const Json& id = FieldOf(message, "id");
    const Json& params = FieldOf(message, "params");
    Json result;
    const std::optional<Failure> failure =
        FailureOf([&] { result = ResultOf(MethodOf(message), params.is_null() ? Json::object() : params); });
    if (id.is_null())
        return;
    if (failure)
        ReplyError(id, failure->code, failure->what());
    else
        m_session.send({{"jsonrpc", "2.0"}, {"id", id}, {"result", std::move(result)}});
}

Json Server::ResultOf(const std::string& method, const Json& params)
{
    const auto known = std::ranges::find(Methods(), method, &Method::name);
    const bool isFirst = method == "initialize";
    if (m_session.state == Session::State::New && !isFirst && method != "exit")
        throw Failure(serverNotInitialized, "the first request must be \"initialize\"");
    if (m_session.state == Session::State::ShutDown && method != "exit")
        throw Failure(invalidRequest, "after \"shutdown\" comes only \"exit\"");
    if (m_session.state == Session::State::Ready && isFirst)
        throw Failure(invalidRequest, "\"initialize\" comes once");
    if (known == Methods().end())
        throw Failure(methodNotFound, "there is no method \"" + method + "\"");
    return known->answer(m_session, params);
}

void Server::ReplyError(const Json& id, int code, const std::string& message) const
{
    m_session.send({{"jsonrpc", "2.0"}, {"id", id}, {"error", {{"code", code}, {"message", message}}}});
}

} // namespace lytdlg
