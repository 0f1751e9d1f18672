#include "lytdlg/try/CaseFile.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace lytdlg
{

namespace fs = std::filesystem;

using commandline::AsAnsi;
using commandline::Quoted;
using commandline::ToUtf8;
using script::LineReader;
namespace
{

const std::vector<std::string> headerWords = {"case", "dialog", "input", "define", "language", "init", "items"};
const std::vector<std::string> stateWords = {"enabled", "disabled", "shown", "visible", "hidden"};
const std::vector<std::string> endingWords = {"confirmed", "cancelled", "refused", "open"};

bool Has(const std::vector<std::string>& words, const std::string& word)
{
    return std::ranges::find(words, word) != words.end();
}

// Reads one line after the other into cases.
class CaseReader
{
public:
    explicit CaseReader(const std::string& fileName)
        : m_file(fileName), m_common{PathOf(fileName).filename().string(), fileName, 1, {}, {}}
    {
    }

    void Read(const LineReader& line)
    {
        KeepMistake([&] { ReadLine(line); });
    }

    CaseText Take()
    {
        std::vector<GoldenCase>& cases = m_text.cases;
        if (cases.empty())
            cases.push_back(m_common);
        for (const GoldenCase& one : cases)
        {
            if (one.setup.dialog.empty())
                KeepMistake(
                    [&] { LineReader(m_file, one.line, "").Fail("the case names no dialog; write dialog: FILE.dlg"); });
        }
        return std::move(m_text);
    }

private:
    template <class READ>
    void KeepMistake(const READ& read)
    {
        try
        {
            read();
        }
        catch (const script::FileError& mistake)
        {
            m_text.mistakes.push_back(mistake);
        }
    }

    void ReadLine(LineReader line)
    {
        if (line.IsAtEnd())
            return;
        const std::string word = line.Word("a word");
        if (word == "case")
            BeginCase(line);
        else if (word == "expect")
            AddExpectation(line);
        else if (const script::StepForm* form = FindForm(word, script::Player::OfDescriptions))
            AddAct(*form, line);
        else
            ReadHeader(word, line);
    }

    void AddAct(const script::StepForm& form, LineReader& line)
    {
        const size_t column = line.NextColumn();
        const script::Step act = ReadStep(form, line, script::Player::OfDescriptions);
        if (act.target.kind == script::TargetKind::Name)
            AddControl(act.target.name, line, column);
        Steps().push_back({line.Number(), true, act, {}});
    }

    void AddControl(const std::string& name, const LineReader& line, size_t column)
    {
        m_text.names.push_back({false, name, Current().setup.dialog, line.Number(), column - 1});
    }

    void BeginCase(LineReader& line)
    {
        line.Expect(':', "write: case: what it shows");
        GoldenCase begun = m_common;
        begun.name = line.Text();
        begun.line = line.Number();
        m_text.cases.push_back(std::move(begun));
    }

    GoldenCase& Current() { return m_text.cases.empty() ? m_common : m_text.cases.back(); }
    std::vector<CaseStep>& Steps() { return Current().steps; }

    // A path as the case file sees it.
    std::string Resolved(const std::string& text) const
    {
        return (PathOf(m_file).parent_path() / PathOf(text)).lexically_normal().string();
    }

    void ReadHeader(const std::string& word, LineReader& line)
    {
        const size_t column = line.Column();
        Setup& setup = Current().setup;
        if (word == "items")
        {
            const std::string control = line.Word("the name of a list");
            AddControl(control, line, line.Column());
            line.Expect('=', "write: items LIST = FILE");
            setup.items.push_back({AsAnsi(control), Resolved(line.Text())});
            return;
        }
        if (!Has(headerWords, word))
            FailUnknown(word, column, line);
        line.Expect(':', "write: " + word + ": text");
        const std::string text = line.Text();
        if (word == "dialog")
        {
            setup.dialog = Resolved(text);
            m_text.names.push_back({true, PathOf(text).stem().string(), setup.dialog, line.Number(),
                                    line.Column() - 1 + text.find_last_of("/\\") + 1});
        }
        else if (word == "input")
            setup.input = AsAnsi(text);
        else if (word == "define")
            setup.defines.push_back(AsAnsi(text));
        else if (word == "language")
            setup.language = AsAnsi(text);
        else
            setup.initFolder = Resolved(text);
    }

    [[noreturn]] static void FailUnknown(const std::string& word, size_t column, const LineReader& line)
    {
        line.FailAt(column, "there is no word \"" + word + "\"; " + commandline::Suggestion(word, CaseWords()));
    }

    void AddExpectation(LineReader& line) { Steps().push_back({line.Number(), false, {}, ReadExpectation(line)}); }

    Expectation ReadExpectation(LineReader& line)
    {
        const std::string word = line.Word("what is expected");
        if (word == "message")
            return {ExpectationKind::Message, "", line.Text()};
        if (word == "error")
            return {ExpectationKind::Error, "", line.Text()};
        if (word == "result" || word == "title")
        {
            line.Expect('=', "write: expect " + word + " = \"text\"");
            return {word == "result" ? ExpectationKind::Result : ExpectationKind::Title, "", line.Text()};
        }
        if (line.IsAtEnd() || word == "not")
            return ReadEnding(word, line);
        AddControl(word, line, line.Column());
        Expectation expectation{ExpectationKind::Value, AsAnsi(word), "", line.Place()};
        ReadOfControl(line, expectation);
        return expectation;
    }

    static Expectation ReadEnding(const std::string& word, LineReader& line)
    {
        if (word == "not")
        {
            if (line.Word("opened") != "opened")
                line.Fail("write: expect not opened");
            line.ExpectEnd();
            return {ExpectationKind::Ending, "", "not opened"};
        }
        if (!Has(endingWords, word))
            line.Fail("\"" + word +
                      "\" alone is nothing to expect; write a control's name with = VALUE or a state, or " +
                      commandline::Suggestion(word, endingWords));
        return {ExpectationKind::Ending, "", word};
    }

    static void ReadOfControl(LineReader& line, Expectation& expectation)
    {
        if (line.Takes('='))
        {
            expectation.expected = line.Text();
            return;
        }
        const std::string state = line.Word("a state");
        if (state == "items")
        {
            expectation.kind = ExpectationKind::Items;
            for (const std::string& item : line.Texts())
                expectation.expected += (expectation.expected.empty() ? "" : ", ") + Quoted(item);
            return;
        }
        std::vector<std::string> known = stateWords;
        known.emplace_back("items");
        if (!Has(stateWords, state))
            line.Fail("there is no state \"" + state + "\"; " + commandline::Suggestion(state, known));
        line.ExpectEnd();
        expectation.kind = ExpectationKind::State;
        expectation.expected = state;
    }

    std::string m_file;
    GoldenCase m_common;
    CaseText m_text;
};

} // namespace

CaseText ReadCaseText(const std::string& file, const std::vector<std::string>& lines)
{
    CaseReader reader(file);
    int number = 0;
    for (const std::string& line : lines)
        reader.Read(LineReader(file, ++number, line));
    return reader.Take();
}

std::vector<GoldenCase> ReadCases(const std::string& file, const std::vector<std::string>& lines)
{
    CaseText text = ReadCaseText(file, lines);
    if (!text.mistakes.empty())
        throw script::FileError(text.mistakes.front());
    return std::move(text.cases);
}

std::vector<std::string> CaseWords()
{
    std::vector<std::string> words = headerWords;
    words.emplace_back("expect");
    std::ranges::copy(script::ActWords(), std::back_inserter(words));
    return words;
}

std::string Describe(const Expectation& expectation)
{
    const std::string name = ToUtf8(expectation.name);
    switch (expectation.kind)
    {
    case ExpectationKind::Value: return "expect " + name + " = " + Quoted(expectation.expected);
    case ExpectationKind::State: return "expect " + name + " " + expectation.expected;
    case ExpectationKind::Items:
        return "expect " + name + " items" + (expectation.expected.empty() ? "" : " ") + expectation.expected;
    case ExpectationKind::Title: return "expect title = " + Quoted(expectation.expected);
    case ExpectationKind::Message: return "expect message " + Quoted(expectation.expected);
    case ExpectationKind::Result: return "expect result = " + Quoted(expectation.expected);
    case ExpectationKind::Error: return "expect error " + expectation.expected;
    case ExpectationKind::Ending: break;
    }
    return "expect " + expectation.expected;
}

} // namespace lytdlg
