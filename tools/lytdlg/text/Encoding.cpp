#include "lytdlg/text/Encoding.h"

#include "commandline/Text.h"

#include <algorithm>
#include <stdexcept>

namespace lytdlg
{

namespace
{

bool IsWideAt(const std::string& bytes, size_t upper)
{
    constexpr size_t looked = 8;
    if (bytes.size() < looked)
        return false;
    for (size_t place = 0; place < looked; ++place)
    {
        if ((bytes[place] == '\0') != (place % 2 == upper))
            return false;
    }
    return true;
}

// The number of the first line that is not the same after the way there and back.
size_t LineThatIsLost(const std::string& text, const std::string& ansi)
{
    const std::string back = commandline::ToUtf8(ansi);
    const auto lost = std::mismatch(text.begin(), text.end(), back.begin(), back.end()).first;
    return static_cast<size_t>(std::count(text.begin(), lost, '\n')) + 1;
}

} // namespace

bool IsUtf16(const std::string& bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") || IsWideAt(bytes, 0) || IsWideAt(bytes, 1);
}

std::string InCodePage(const std::string& bytes)
{
    const char* const mark = IsWideAt(bytes, 1) ? "\xFF\xFE" : IsWideAt(bytes, 0) ? "\xFE\xFF" : "";
    const std::string text = commandline::FromMarkedUnicode(mark + bytes);
    const std::string ansi = commandline::AsAnsi(text);
    if (commandline::AsUtf8(text) != commandline::ToUtf8(ansi))
        throw std::runtime_error("line " + std::to_string(LineThatIsLost(text, ansi)) +
                                 " has a letter that the code page does not have");
    return ansi;
}

} // namespace lytdlg
