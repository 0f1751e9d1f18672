#include "WellFormed.h"

#include <regex>
#include <vector>

namespace
{

const std::regex declaration(R"(<\?xml version="1\.0" encoding="UTF-8"\?>)");
const std::regex openTag(R"re(<([a-zA-Z][a-zA-Z0-9]*)( [a-zA-Z:-]+="[^"<>]*")*(/?)>)re");
const std::regex closeTag(R"(</([a-zA-Z][a-zA-Z0-9]*)>)");
const std::regex entity("&(amp|lt|gt|quot|#39);");

using Place = std::string::const_iterator;

bool Takes(const std::regex& form, Place& place, Place end, std::smatch& match)
{
    if (!std::regex_search(place, end, match, form, std::regex_constants::match_continuous))
        return false;
    place += match.length();
    return true;
}

bool IsCharacter(unsigned char ch)
{
    return ch == '\n' || (ch >= ' ' && ch != '<' && ch != '>' && ch != '&' && ch != 0x7F);
}

// The length of the UTF-8 character there; 0 for none.
int LengthOf(Place place, Place end)
{
    const auto first = static_cast<unsigned char>(*place);
    const int length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (end - place < length)
        return 0;
    for (int index = 1; index < length; ++index)
    {
        if ((static_cast<unsigned char>(place[index]) & 0xC0U) != 0x80U)
            return 0;
    }
    // U+0080 to U+009F are control characters.
    return first == 0xC2 && static_cast<unsigned char>(place[1]) < 0xA0U ? 0 : length;
}

} // namespace

std::string MistakeOfXml(const std::string& text)
{
    std::vector<std::string> open;
    std::smatch match;
    Place place = text.begin();
    const auto at = [&](const std::string& what)
    {
        return what + " at " + std::to_string(place - text.begin()) + ": " +
               text.substr(static_cast<size_t>(place - text.begin()), 60);
    };
    while (place != text.end())
    {
        if (Takes(declaration, place, text.end(), match) || Takes(entity, place, text.end(), match))
            continue;
        if (*place != '<')
        {
            const int length = LengthOf(place, text.end());
            if (length == 0 || !IsCharacter(static_cast<unsigned char>(*place)))
                return at("no character");
            place += length;
        }
        else if (Takes(closeTag, place, text.end(), match))
        {
            if (open.empty() || open.back() != match[1])
                return at("no element ends");
            open.pop_back();
        }
        else if (!Takes(openTag, place, text.end(), match))
            return at("no tag");
        else if (match[3].length() == 0)
            open.push_back(match[1]);
    }
    return open.empty() ? "" : "the element " + open.back() + " does not end";
}
