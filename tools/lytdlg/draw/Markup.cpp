#include "lytdlg/draw/Markup.h"

namespace lytdlg
{

namespace
{

constexpr const char* replacement = "\xEF\xBF\xBD";

// The length of the character that begins there; 0 for a byte that begins none.
size_t LengthAt(const std::string& text, size_t place)
{
    const auto byteAt = [&](size_t at) { return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U; };
    const unsigned first = byteAt(place);
    const size_t length = first < 0x80U ? 1U : first < 0xC2U ? 0U : first < 0xE0U ? 2U : first < 0xF0U ? 3U : 4U;
    for (size_t at = place + 1; at < place + length; ++at)
    {
        if ((byteAt(at) & 0xC0U) != 0x80U)
            return 0;
    }
    const unsigned second = byteAt(place + 1);
    const bool isTooLong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool isNone = (first == 0xEDU && second >= 0xA0U) || (first == 0xF4U && second >= 0x90U) || first > 0xF4U;
    return isTooLong || isNone ? 0 : length;
}

// Neither file format has a place for control characters and for the two last of the first plane.
bool IsHeld(const std::string& character)
{
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return first >= 0x20U && first != 0x7FU;
    const auto second = static_cast<unsigned char>(character[1]);
    return (first != 0xC2U || second >= 0xA0U) && character != "\xEF\xBF\xBE" && character != "\xEF\xBF\xBF";
}

std::string EscapedCharacter(const std::string& character)
{
    static constexpr struct
    {
        char character;
        const char* text;
    } escapes[] = {{'&', "&amp;"},  {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"},
                   {'\'', "&#39;"}, {'\t', " "},   {'\n', " "},   {'\r', " "}};
    for (const auto& escape : escapes)
    {
        if (character[0] == escape.character)
            return escape.text;
    }
    return IsHeld(character) ? character : replacement;
}

} // namespace

std::string Escaped(const std::string& utf8)
{
    std::string escaped;
    for (size_t place = 0; place < utf8.size();)
    {
        const size_t length = LengthAt(utf8, place);
        escaped += length > 0 ? EscapedCharacter(utf8.substr(place, length)) : replacement;
        place += length > 0 ? length : 1;
    }
    return escaped;
}

void Markup::Begin(const char* element, const Attributes& attributes)
{
    m_text.append(m_open.size() * 2, ' ').append("<").append(element);
    for (const Attribute& attribute : attributes)
        m_text.append(" ").append(attribute.name).append("=\"").append(Escaped(attribute.value)).append("\"");
}

void Markup::Open(const char* element, const Attributes& attributes)
{
    Begin(element, attributes);
    m_text += ">\n";
    m_open.push_back(element);
}

void Markup::Close()
{
    const char* element = m_open.back();
    m_open.pop_back();
    m_text.append(m_open.size() * 2, ' ').append("</").append(element).append(">\n");
}

void Markup::Empty(const char* element, const Attributes& attributes)
{
    Begin(element, attributes);
    m_text += "/>\n";
}

void Markup::Leaf(const char* element, const Attributes& attributes, const std::string& utf8)
{
    Begin(element, attributes);
    m_text.append(">").append(Escaped(utf8)).append("</").append(element).append(">\n");
}

} // namespace lytdlg
