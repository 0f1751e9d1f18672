// Messages of the protocol in a stream of bytes: each after a header that has its length.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace lytdlg
{

class MessageStream
{
public:
    void Feed(const char* bytes, size_t count) { m_bytes.append(bytes, count); }
    // The next whole message; nothing before all of it is there. A header without a length is passed over.
    std::optional<std::string> Take();

private:
    std::string m_bytes;
};

std::string WithHeader(const std::string& message);

} // namespace lytdlg
