#include "lytcall/Script.h"

#include "commandline/Suggestion.h"
#include "commandline/Text.h"

#include <algorithm>
#include <cctype>

namespace lytcall
{

namespace
{

struct Word
{
    std::string text;
    bool quoted = false;
    int column = 1;
};

// What is known while one line is read.
class LineReader
{
public:
    LineReader(const std::string& fileName, int lineNumber, std::string lineText)
        : m_file(fileName), m_line(lineNumber), m_text(std::move(lineText))
    {
    }

    // The words of the line; a '#' outside quotes begins a comment.
    std::vector<Word> Words();
    Step StepOf(const std::vector<Word>& words) const;

private:
    [[noreturn]] void Fail(int column, const std::string& message) const
    {
        throw ScriptError(m_file, m_line, column, message);
    }
    Word QuotedWord();
    Word PlainWord();
    Target TargetOf(const Word& word) const;
    const StepForm& FormOf(const Word& word) const;
    void CheckArgument(char shape, const Word& word) const;
    void CheckWord(const Word& word, const char* what, const std::vector<std::string>& known) const;

    const std::string& m_file;
    int m_line;
    std::string m_text;
    size_t m_next = 0;
};

bool IsBlank(char ch)
{
    return ch == ' ' || ch == '\t' || ch == '\r';
}

bool IsNumber(const std::string& text)
{
    return !text.empty() && text.size() < 7 &&
           std::ranges::all_of(text, [](unsigned char ch) { return std::isdigit(ch) != 0; });
}

std::vector<Word> LineReader::Words()
{
    std::vector<Word> words;
    while (m_next < m_text.size())
    {
        if (IsBlank(m_text[m_next]))
            ++m_next;
        else if (m_text[m_next] == '#' &&
                 (m_next + 1 == m_text.size() || !std::isdigit(static_cast<unsigned char>(m_text[m_next + 1]))))
            break;
        else
            words.push_back(m_text[m_next] == '"' ? QuotedWord() : PlainWord());
    }
    return words;
}

Word LineReader::QuotedWord()
{
    const int column = static_cast<int>(m_next) + 1;
    std::optional<std::string> text = commandline::TakeQuoted(m_text, m_next);
    if (!text)
        Fail(column, "the quoted text does not end; add a \" at its end");
    return {std::move(*text), true, column};
}

Word LineReader::PlainWord()
{
    const size_t start = m_next;
    while (m_next < m_text.size() && !IsBlank(m_text[m_next]))
        ++m_next;
    return {m_text.substr(start, m_next - start), false, static_cast<int>(start) + 1};
}

const StepForm& LineReader::FormOf(const Word& word) const
{
    const std::vector<StepForm>& forms = StepForms();
    const auto found = std::ranges::find_if(forms, [&](const StepForm& form) { return word.text == form.word; });
    if (found != forms.end())
        return *found;
    std::vector<std::string> known;
    for (const StepForm& form : forms)
        known.emplace_back(form.word);
    Fail(word.column, "there is no step \"" + word.text + "\"; " + commandline::Suggestion(word.text, known));
}

Target LineReader::TargetOf(const Word& word) const
{
    if (word.quoted)
        return {TargetKind::Caption, word.text, 1};
    if (word.text == "focus")
        return {TargetKind::Focus, "", 1};

    const size_t digits = word.text.find_last_not_of("0123456789") + 1;
    const std::string name = word.text.substr(0, digits);
    const std::string number = word.text.substr(digits);
    if (!number.empty() && (!IsNumber(number) || std::stoul(number) == 0))
        Fail(word.column, "controls are counted from 1; write " + name + "1 for the first");
    if (name == "#" && !number.empty())
        return {TargetKind::Number, "", std::stoul(number)};
    CheckWord({name, false, word.column}, "type of control", TypeWords());
    return {TargetKind::Type, name, number.empty() ? 1 : std::stoul(number)};
}

void LineReader::CheckWord(const Word& word, const char* what, const std::vector<std::string>& known) const
{
    if (std::ranges::find(known, word.text) == known.end())
        Fail(word.column, std::string("there is no ") + what + " \"" + word.text + "\"; " +
                              commandline::Suggestion(word.text, known));
}

void LineReader::CheckArgument(char shape, const Word& word) const
{
    if (shape == 'n' && !IsNumber(word.text))
        Fail(word.column, "a number is due here and not \"" + word.text + "\"; write digits only");
    if (shape == 's' && !word.quoted)
        CheckWord(word, "state", StateWords());
    if (shape == 'k' && !(word.text.size() == 5 && word.text.starts_with("alt+")))
        CheckWord(word, "key", KeyWords());
    if (shape == 'b')
        CheckWord(word, "button of a message", ButtonWords());
    if (shape == 't' && !word.quoted)
        Fail(word.column, "the text " + word.text + " stands without quotes; write \"" + word.text + "\"");
}

Step LineReader::StepOf(const std::vector<Word>& words) const
{
    const StepForm& form = FormOf(words.front());
    Step step{m_line, words.front().column, form.word, {}, {}, false};
    size_t next = 1;
    bool optional = false;
    for (const char* shape = form.shape; *shape != '\0'; ++shape)
    {
        if (*shape == '?')
        {
            optional = true;
            continue;
        }
        if (next == words.size())
        {
            if (optional)
                break;
            Fail(static_cast<int>(m_text.size()) + 1,
                 "the step ends too soon; write it as: " + std::string(form.word) + " " + form.arguments);
        }
        const Word& word = words[next++];
        if (*shape == 'c')
        {
            step.target = TargetOf(word);
            continue;
        }
        CheckArgument(*shape, word);
        step.arguments.push_back(word.text);
        step.isState = *shape == 's' && !word.quoted;
    }
    if (next < words.size())
        Fail(words[next].column,
             "nothing may stand here; write the step as: " + std::string(form.word) + " " + form.arguments);
    return step;
}

} // namespace

ScriptError::ScriptError(const std::string& file, int line, int column, const std::string& message)
    : std::runtime_error(file + ":" + std::to_string(line) + ":" + std::to_string(column) + ": error: " + message)
{
}

std::vector<Step> ReadScript(const std::string& fileName, std::string_view text)
{
    std::vector<Step> steps;
    int lineNumber = 0;
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    while (!text.empty())
    {
        const size_t end = std::min(text.find('\n'), text.size());
        LineReader line(fileName, ++lineNumber, std::string(text.substr(0, end)));
        const std::vector<Word> words = line.Words();
        if (!words.empty())
            steps.push_back(line.StepOf(words));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return steps;
}

} // namespace lytcall
