// One line of a script or of a case file, read word by word. What is wrong in it is reported with its place.
#pragma once

#include "commandline/CommandLine.h"

#include <string>
#include <vector>

namespace script
{

// A mistake in a file, reported as "file:line:column: error: what; the way out".
class FileError : public commandline::UsageError
{
public:
    FileError(const std::string& place, int number, size_t at, const std::string& words)
        : UsageError(place + words), line(number), column(at), message(words)
    {
    }

    int line;
    size_t column; // both from 1
    std::string message;
};

// What a script or a case file holds, in UTF-8. A text that is not UTF-8 counts as one in the code page of the dialogs.
std::string ScriptText(std::string content);

class LineReader
{
public:
    LineReader(std::string file, int number, std::string text)
        : m_file(std::move(file)), m_number(number), m_text(std::move(text))
    {
    }

    // True at the end of the line and at a comment.
    bool IsAtEnd();
    // The same where a control may come, which "#5" is.
    bool IsAtEndOrControl();
    bool IsAtQuote() { return !IsAtEnd() && m_text[m_next] == '"'; }
    // Takes the character if it comes next.
    bool Takes(char ch);
    void Expect(char ch, const std::string& wayOut);
    // A bare word, or a text in quotes with \" \\ \n \r \t. Fails without one.
    std::string Word(const std::string& what);
    // Everything up to the next blank.
    std::string PlainWord();
    // A text in quotes, or the rest of the line without the blanks round it.
    std::string Text();
    void ExpectEnd();
    // A list of texts, separated by commas.
    std::vector<std::string> Texts();

    int Number() const { return m_number; }
    // Where the last word or text began.
    size_t Column() const { return m_start + 1; }
    size_t EndColumn() const { return m_text.size() + 1; }
    // Where the next one begins.
    size_t NextColumn();
    // Of the last word, as the beginning of an error message.
    std::string Place() const { return PlaceAt(Column()); }
    [[noreturn]] void Fail(const std::string& message) const { FailAt(Column(), message); }
    [[noreturn]] void FailAt(size_t column, const std::string& message) const;

private:
    std::string PlaceAt(size_t column) const;
    void SkipBlanks();
    std::string Quoted();

    std::string m_file;
    int m_number;
    std::string m_text;
    size_t m_next = 0;
    size_t m_start = 0;
};

} // namespace script
