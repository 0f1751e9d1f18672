// One line of a script or of a case file, read word by word. What is wrong in it is told with its place.
#pragma once

#include "commandline/CommandLine.h"

#include <string>
#include <vector>

namespace lytdlg
{

// Where a line stands.
struct LinePlace
{
    std::string file;
    int line = 0;
};

// A mistake in a file, told as "file:line:column: error: what; the way out".
class FileError : public commandline::UsageError
{
public:
    FileError(const LinePlace& place, size_t column, const std::string& message);
};

// Reads a whole file; a text that is no UTF-8 counts as one in the code page of the dialogs, and comes as UTF-8 too.
std::string ReadUtf8File(const std::string& name);
// The lines of a text, without their ends.
std::vector<std::string> LinesOf(const std::string& text);
// A word of the command line or of a file, UTF-8 or in the code page of the dialogs, as the dialogs have it.
std::string AnsiOf(const std::string& text);

class LineReader
{
public:
    LineReader(LinePlace place, std::string text) : m_place(std::move(place)), m_text(std::move(text)) {}

    // True at the end of the line and at a comment.
    bool IsAtEnd();
    // Takes the character if it comes next.
    bool Takes(char ch);
    void Expect(char ch, const std::string& wayOut);
    // A bare word, or a text in quotes with \" \\ \n \r \t. Fails where there is none.
    std::string Word(const std::string& what);
    // A text in quotes, or the rest of the line without the blanks round it.
    std::string Text();
    void ExpectEnd();
    // A list of texts, separated by commas.
    std::vector<std::string> Texts();

    // Where the last word or text began.
    size_t Column() const { return m_start + 1; }
    const LinePlace& Place() const { return m_place; }
    // The same as the beginning of an error message.
    std::string PlaceOfWord() const { return FileError(m_place, Column(), "").what(); }
    [[noreturn]] void Fail(const std::string& message) const;
    [[noreturn]] void FailAt(size_t column, const std::string& message) const;

private:
    void SkipBlanks();
    std::string Quoted();

    LinePlace m_place;
    std::string m_text;
    size_t m_next = 0;
    size_t m_start = 0;
};

} // namespace lytdlg
