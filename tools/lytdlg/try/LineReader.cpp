#include "lytdlg/try/LineReader.h"

#include "commandline/Text.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* blanks = " \t\r";

bool IsUtf8(const std::string& text)
{
    for (size_t place = 0; place < text.size();)
    {
        const size_t length = commandline::LengthOfCharacter(text, place);
        if (length == 0)
            return false;
        place += length;
    }
    return true;
}

} // namespace

FileError::FileError(const LinePlace& place, size_t column, const std::string& message)
    : UsageError(place.file + ":" + std::to_string(place.line) + ":" + std::to_string(column) + ": error: " + message)
{
}

std::string ReadUtf8File(const std::string& name)
{
    const std::optional<std::string> content = ReadWholeFile(PathOf(name));
    if (!content)
        throw commandline::UsageError("there is no file \"" + name + "\"; check folder and name");
    std::string text = *content;
    if (text.starts_with(byteOrderMark))
        text.erase(0, 3);
    return IsUtf8(text) ? text : commandline::ToUtf8(text);
}

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();)
    {
        const size_t end = std::min(text.find('\n', start), text.size());
        const size_t length = end - start;
        lines.push_back(text.substr(start, length > 0 && text[end - 1] == '\r' ? length - 1 : length));
        start = end + 1;
    }
    return lines;
}

std::string AnsiOf(const std::string& text)
{
    return IsUtf8(text) ? commandline::ToAnsi(text) : text;
}

bool LineReader::IsAtEnd()
{
    SkipBlanks();
    return m_next == m_text.size() || m_text[m_next] == '#';
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
        Fail("'" + m_text.substr(m_start, 1) + "' stands where " + what + " should be; take it away");
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

void LineReader::Fail(const std::string& message) const
{
    FailAt(Column(), message);
}

void LineReader::FailAt(size_t column, const std::string& message) const
{
    throw FileError(m_place, column, message);
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

} // namespace lytdlg
