// Writes XML that is well formed for any text.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

// Escapes a text for content and attribute values. What such a file cannot hold (control characters, broken UTF-8)
// becomes the replacement character.
std::string Escaped(const std::string& utf8);

struct Attribute
{
    Attribute(const char* attribute, std::string text) : name(attribute), value(std::move(text)) {}
    Attribute(const char* attribute, int number) : name(attribute), value(std::to_string(number)) {}

    const char* name;
    std::string value; // UTF-8
};
using Attributes = std::vector<Attribute>;

// Elements, each on a separate line.
class Markup
{
public:
    void Open(const char* element, const Attributes& attributes = {});
    void Close();
    // An element without content.
    void Empty(const char* element, const Attributes& attributes = {});
    // An element with a text in it; the text stays as it is, blanks included.
    void Leaf(const char* element, const Attributes& attributes, const std::string& utf8);

    const std::string& Text() const { return m_text; }

private:
    void Begin(const char* element, const Attributes& attributes);

    std::string m_text;
    std::vector<const char*> m_open;
};

} // namespace lytdlg
