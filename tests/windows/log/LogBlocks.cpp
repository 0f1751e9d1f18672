#include "LogBlocks.h"

namespace
{

// The place after the text at the place, npos when something else is there.
size_t After(const std::string& log, size_t place, const std::string& text)
{
    return place != std::string::npos && log.compare(place, text.size(), text) == 0 ? place + text.size()
                                                                                    : std::string::npos;
}

// The place after the end of the line.
size_t AfterLine(const std::string& log, size_t place)
{
    const size_t end = place != std::string::npos ? log.find("\r\n", place) : std::string::npos;
    return end != std::string::npos ? end + 2 : end;
}

} // namespace

LogBlocks::LogBlocks(const std::string& log)
{
    const std::string rule = "\r\n" + std::string(77, '-') + "\r\n";
    const std::string endBanner = rule + "END...    Date ";
    size_t place = 0;
    for (;;)
    {
        size_t text = AfterLine(log, After(log, place, rule + "START...  Date "));
        text = After(log, text, rule.substr(2) + "\r\n");
        const size_t end = text != std::string::npos ? log.find(endBanner, text) : text;
        const size_t next = After(log, AfterLine(log, After(log, end, endBanner)), "\r\n");
        if (next == std::string::npos)
            break;
        messages.push_back(log.substr(text, end - text));
        place = next;
    }
    rest = log.substr(place);
}
