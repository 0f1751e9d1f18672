#include "lytdlg/draw/Markup.h"

#include "commandline/Text.h"

#include <algorithm>
#include <iterator>

namespace lytdlg
{

std::string Escaped(const std::string& utf8)
{
    static constexpr struct
    {
        char character;
        const char* text;
    } escapes[] = {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}, {'\t', " "}};
    std::string escaped;
    for (const char ch : commandline::Printable(utf8))
    {
        const auto* const escape = std::ranges::find(escapes, ch, [](const auto& each) { return each.character; });
        escaped += escape != std::end(escapes) ? std::string(escape->text) : std::string(1, ch);
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
