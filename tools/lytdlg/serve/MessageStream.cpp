#include "lytdlg/serve/MessageStream.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace lytdlg
{

namespace
{

constexpr std::string_view endOfHeader = "\r\n\r\n";

// Names of fields are the same in upper and lower case.
std::optional<size_t> LengthIn(std::string header)
{
    constexpr std::string_view field = "\r\ncontent-length:";
    header = "\r\n" + header;
    std::ranges::transform(header, header.begin(),
                           [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    const size_t place = header.find(field);
    if (place == std::string::npos)
        return std::nullopt;
    const size_t digits = std::min(header.find_first_not_of(' ', place + field.size()), header.size());
    size_t length = 0;
    const auto [end, failure] = std::from_chars(header.data() + digits, header.data() + header.size(), length);
    return failure == std::errc() ? std::optional(length) : std::nullopt;
}

} // namespace

std::optional<std::string> MessageStream::Take()
{
    while (true)
    {
        const size_t end = m_bytes.find(endOfHeader);
        if (end == std::string::npos)
            return std::nullopt;
        const size_t begin = end + endOfHeader.size();
        const std::optional<size_t> length = LengthIn(m_bytes.substr(0, end));
        if (length && *length > m_bytes.size() - begin)
            return std::nullopt;
        std::optional<std::string> message;
        if (length)
            message = m_bytes.substr(begin, *length);
        m_bytes.erase(0, begin + length.value_or(0));
        if (message)
            return message;
    }
}

std::string WithHeader(const std::string& message)
{
    return "Content-Length: " + std::to_string(message.size()) + std::string(endOfHeader) + message;
}

} // namespace lytdlg
