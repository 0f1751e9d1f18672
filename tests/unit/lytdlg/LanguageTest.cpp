// What an editor is answered about a place: a table of questions, lines of an example with a `|` at the place, and answers.
#include "ExampleFindings.h"

#include "lytdlg/language/Completion.h"
#include "lytdlg/language/Navigation.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace lytdlg
{

namespace
{

constexpr const char* languageCases = LYT_SOURCE_FOLDER "/tests/unit/lytdlg/language.cases";
constexpr const char* goldenCase = "dialog: judged.dlg\nset Name = Name\nexpect Name = \"Name\"\nexpect Unit = \"\"\n";

struct AskedCase
{
    std::string question;
    std::string lines;
    std::string answer;
};

std::vector<AskedCase> ReadAskedCases()
{
    std::vector<AskedCase> cases;
    bool isNew = true;
    for (const std::string& line : commandline::LinesOf(ReadWholeFile(languageCases).value()))
    {
        if (isNew && !line.empty())
            cases.push_back({line, "", ""});
        else if (line.starts_with("=> ") || line == "=>")
            cases.back().answer += line + "\n";
        else if (!line.empty())
            cases.back().lines += line + "\n";
        isNew = line.empty();
    }
    return cases;
}

class AskedFolder
{
public:
    AskedFolder()
    {
        for (const ExampleFile& file : ExampleFiles())
            m_folder.Write(file.name, file.content);
        m_folder.Write("judged.case", goldenCase);
    }

    std::string AnswerTo(const AskedCase& asked)
    {
        std::string bytes = ExampleDescription(asked.lines);
        const size_t place = bytes.find('|');
        bytes.erase(place, 1);
        const TextPosition position = PositionAt(bytes, place);
        m_workspace.Open(m_path, commandline::ToUtf8(bytes));
        const int line = position.line + 1;
        const Description& description = m_workspace.DescriptionAt(m_path);
        NamedWord word;
        for (const NamedWord& found : WordsIn(description, line))
        {
            if (found.place.column <= position.character &&
                position.character <= found.place.column + found.place.length)
                word = found;
        }
        const std::string name = asked.question.substr(asked.question.find(' ') + 1);
        return asked.question == "complete" ? Completed(description, line, position.character)
               : asked.question == "hover"  ? Lines(ExplanationOf(m_workspace, m_path, word))
               : asked.question == "places" ? Places(word)
                                            : Renamed(word, name);
    }

private:
    static std::string Lines(const std::string& text)
    {
        std::string answer;
        for (const std::string& line : commandline::LinesOf(text))
            answer += (line.empty() ? "=>" : "=> " + line) + "\n";
        return answer;
    }

    std::string Completed(const Description& description, int line, int column) const
    {
        std::string answer;
        for (const Proposal& proposal : ProposalsAt(description, m_workspace.SurroundingsAt(m_path), line, column).all)
            answer += (answer.empty() ? "" : " ") + (proposal.isSnippet || proposal.insert != proposal.label
                                                         ? "{" + proposal.insert + "}"
                                                         : proposal.label);
        return Lines(answer);
    }

    std::string ShortName(const std::string& path) const
    {
        return std::filesystem::path(path).lexically_relative(m_folder.Path()).generic_string();
    }

    std::string Places(const NamedWord& word) const
    {
        std::string answer;
        for (const TextPlace& found : PlacesOf(m_workspace, m_path, word))
            answer += ShortName(found.path) + ":" + std::to_string(found.place.line) + ":" +
                      std::to_string(found.place.column + 1) + (found.isDeclared ? " declared" : "") + "\n";
        return Lines(answer);
    }

    std::string Renamed(const NamedWord& word, const std::string& name) const
    {
        std::string answer;
        try
        {
            for (const auto& [path, edits] : RenamingOf(m_workspace, m_path, word, name))
            {
                const std::vector<std::string> lines = commandline::LinesOf(m_workspace.BytesOf(path));
                for (const TextEdit& edit : edits)
                {
                    std::string line = lines.at(static_cast<size_t>(edit.range.begin.line));
                    const int length = edit.range.end.character - edit.range.begin.character;
                    line.replace(static_cast<size_t>(edit.range.begin.character), static_cast<size_t>(length),
                                 "{" + edit.text + "}");
                    answer += ShortName(path) + ": " + Trimmed(line) + "\n";
                }
            }
        }
        catch (const RenameRefused& refused)
        {
            answer = refused.what();
            const size_t place = answer.find(m_folder.Path());
            if (place != std::string::npos)
                answer.erase(place, m_folder.Path().size() + 1);
        }
        return Lines(answer);
    }

    const TestFolder m_folder;
    const std::string m_path = PlainPath(m_folder.File("judged.dlg"));
    Workspace m_workspace{{}, {}};
};

} // namespace

// After a wanted change: LYT_UPDATE=1 writes the answers into the table.
TEST(Language, AnswersAboutAPlace)
{
    AskedFolder folder;
    const bool isUpdate = std::getenv("LYT_UPDATE") != nullptr;
    std::string table;
    for (const AskedCase& asked : ReadAskedCases())
    {
        const std::string answer = folder.AnswerTo(asked);
        const std::string question = asked.question + "\n" + asked.lines;
        table += (table.empty() ? "" : "\n") + question + answer;
        EXPECT_TRUE(isUpdate || answer == asked.answer) << question << answer;
    }
    if (isUpdate)
        WriteWholeFile(languageCases, table);
}

// Every statement of the samples, word for word: no name of a control is taken for something else.
TEST(Language, KnowsTheControlsOfTheSamples)
{
    const Workspace workspace({}, {});
    for (const std::filesystem::path& file : FilesIn(LYT_SOURCE_FOLDER "/samples/dialogs", ".dlg"))
    {
        const Description& description = workspace.DescriptionAt(file.string());
        for (const ClytControlStatement& control : description.controls)
        {
            const NamedWord word = {Meaning::Control, control.name.GetString()};
            if (word.text.empty())
                continue;
            const std::vector<NamedWord> words = WordsLike(description, word);
            EXPECT_TRUE(std::ranges::any_of(words, &NamedWord::isDeclared)) << word.text;
            for (const ClytControlDep& rule : description.rules)
            {
                const auto isOfRule = [&](const NamedWord& found) { return found.place.line == rule.span.line; };
                EXPECT_TRUE(rule.controlName != control.name || std::ranges::any_of(words, isOfRule)) << word.text;
            }
        }
    }
}

} // namespace lytdlg
