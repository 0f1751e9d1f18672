// What an editor is answered about a place: a table of questions, lines of an example with a `|` at the place, and answers.
// The lines are added to a description, or are the whole of the file that the question names.
#include "ExampleFindings.h"

#include "lytdlg/language/Completion.h"
#include "lytdlg/language/Hover.h"
#include "lytdlg/language/Places.h"
#include "lytdlg/language/Renaming.h"
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
    AskedFolder() { m_folder.Write("judged.case", goldenCase); }

    std::string AnswerTo(const AskedCase& asked)
    {
        const size_t in = asked.question.find(" in ");
        const std::string question = asked.question.substr(0, in);
        const bool isOther = in != std::string::npos;
        m_path = PlainPath(m_folder.File(isOther ? asked.question.substr(in + 4) : "judged.dlg"));
        std::string bytes = isOther ? asked.lines : ExampleDescription(asked.lines);
        const size_t place = bytes.find('|');
        bytes.erase(place, 1);
        m_workspace.Open(PlainPath(m_folder.File("judged.dlg")), commandline::ToUtf8(ExampleDescription("")));
        m_workspace.Open(m_path, commandline::ToUtf8(bytes));
        std::string answer = Answer(question, PositionAt(bytes, place));
        m_workspace.Close(m_path);
        return answer;
    }

private:
    std::string Answer(const std::string& question, const TextPosition& position) const
    {
        const NamedWord word = NameAt(m_workspace, m_path, position);
        const std::string name = question.substr(question.find(' ') + 1);
        return question == "complete" ? Completed(position)
               : question == "hover"  ? Lines(ExplanationOf(m_workspace, word))
               : question == "places" ? Places(word)
                                      : Renamed(word, name);
    }

    static std::string Lines(const std::string& text)
    {
        std::string answer;
        for (const std::string& line : commandline::LinesOf(text))
            answer += (line.empty() ? "=>" : "=> " + line) + "\n";
        return answer;
    }

    std::string Completed(const TextPosition& position) const
    {
        std::string answer;
        for (const Proposal& proposal : ProposalsAt(m_workspace, m_path, position).all)
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
        for (const TextPlace& found : PlacesOf(m_workspace, word))
            answer += ShortName(found.path) + ":" + std::to_string(found.place.line) + ":" +
                      std::to_string(found.place.column + 1) + (found.isDeclared ? " declared" : "") + "\n";
        return Lines(answer);
    }

    std::string Renamed(const NamedWord& word, const std::string& name) const
    {
        std::string answer;
        try
        {
            const Renaming renaming = RenamingOf(m_workspace, word, name);
            for (const auto& [path, edits] : renaming.edits)
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
            if (!renaming.file.empty())
                answer += ShortName(renaming.file) + " becomes " + ShortName(renaming.newFile) + "\n";
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

    const FolderWithExamples m_folder;
    std::string m_path;
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

// A case presses a button that opens another dialog: the names after it are those of the controls there.
TEST(Language, RenamesAControlInTheCasesOfCallers)
{
    const FolderWithExamples folder;
    const std::string caller =
        PlainPath(folder.Write("caller.dlg", ExampleDescription("$VALUES\nAdd: DIALOG = inner, parent, parent\n")));
    const std::string inner = PlainPath(folder.Write("inner.dlg", ExampleDescription("")));
    const std::string cases = PlainPath(folder.Write(
        "caller.case", "dialog: caller.dlg\nset Name = a\npress Add\nset Name = b\nok\nexpect Name = \"a\"\n"));
    const Workspace workspace({}, {});
    const auto linesOf = [&](const std::string& path)
    {
        std::string lines;
        const NamedWord name = {Meaning::Control, "Name", {}, false, "", nullptr, path};
        const Renaming renaming = RenamingOf(workspace, name, "Other");
        for (const TextEdit& edit : renaming.edits.at(cases))
            lines += std::to_string(edit.range.begin.line + 1) + " ";
        return lines;
    };
    EXPECT_EQ(linesOf(inner), "4 ");
    EXPECT_EQ(linesOf(caller), "2 6 ");
    EXPECT_EQ(NameAt(workspace, cases, {3, 5}).home, inner);
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
