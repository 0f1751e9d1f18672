#include "script/LineReader.h"

#include "commandline/Text.h"

#include <algorithm>
#include <cctype>

namespace script
{

namespace
{

constexpr const char* blanks = " \t\r";

} // namespace

std::string ScriptText(std::string content)
{
    if (content.starts_with("\xEF\xBB\xBF"))
        content.erase(0, 3);
    return commandline::AsUtf8(content);
}

bool LineReader::IsAtEnd()
{
    SkipBlanks();
    return m_next == m_text.size() || m_text[m_next] == '#';
}

bool LineReader::IsAtEndOrControl()
{
    const bool isNumber =
        IsAtEnd() && m_next + 1 < m_text.size() && std::isdigit(static_cast<unsigned char>(m_text[m_next + 1])) != 0;
    return IsAtEnd() && !isNumber;
}

bool LineReader::Takes(char ch)
{
    if (IsAtEnd() || m_text[m_next] != ch)
        return false;
    m_start = m_next++;
    return true;
}

void LineReader::Expect(char ch, const std::string& wayOut)
{
    if (Takes(ch))
        return;
    FailAt(m_next + 1, std::string("a '") + ch + "' is missing; " + wayOut);
}

std::string LineReader::Word(const std::string& what)
{
    if (IsAtEnd())
        FailAt(m_next + 1, what + " is missing; write it here");
    m_start = m_next;
    if (m_text[m_next] == '"')
        return Quoted();
    m_next = std::min(m_text.find_first_of(" \t\r=:,", m_next), m_text.size());
    if (m_next == m_start)
        Fail("'" + m_text.substr(m_start, 1) + "' is not " + what + "; delete it");
    return m_text.substr(m_start, m_next - m_start);
}

std::string LineReader::PlainWord()
{
    SkipBlanks();
    m_start = m_next;
    m_next = std::min(m_text.find_first_of(blanks, m_next), m_text.size());
    return m_text.substr(m_start, m_next - m_start);
}

std::string LineReader::Text()
{
    SkipBlanks();
    m_start = m_next;
    if (m_next < m_text.size() && m_text[m_next] == '"')
    {
        std::string text = Quoted();
        ExpectEnd();
        return text;
    }
    const size_t last = m_text.find_last_not_of(blanks);
    m_next = m_text.size();
    return last != std::string::npos && last >= m_start ? m_text.substr(m_start, last + 1 - m_start) : "";
}

std::vector<std::string> LineReader::Texts()
{
    std::vector<std::string> texts;
    if (IsAtEnd())
        return texts;
    do
        texts.push_back(Word("a text"));
    while (Takes(','));
    ExpectEnd();
    return texts;
}

void LineReader::ExpectEnd()
{
    if (!IsAtEnd())
        FailAt(m_next + 1, "\"" + m_text.substr(m_next) +
                               "\" is too much here; put texts with blanks in quotes, and a "
                               "comment after a '#'");
}

size_t LineReader::NextColumn()
{
    SkipBlanks();
    return m_next + 1;
}

void LineReader::FailAt(size_t column, const std::string& message) const
{
    throw FileError(PlaceAt(column), m_number, column, message);
}

std::string LineReader::PlaceAt(size_t column) const
{
    return m_file + ":" + std::to_string(m_number) + ":" + std::to_string(column) + ": error: ";
}

void LineReader::SkipBlanks()
{
    m_next = std::min(m_text.find_first_not_of(blanks, m_next), m_text.size());
}

std::string LineReader::Quoted()
{
    m_next = m_start;
    std::optional<std::string> text = commandline::TakeQuoted(m_text, m_next);
    if (!text)
        Fail("the text has no closing quote; end it with a '\"'");
    return std::move(*text);
}

} // namespace script
