#include "lytdlg/language/Navigation.h"

#include "commandline/Text.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/StatementText.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <filesystem>

namespace lytdlg
{

namespace
{

namespace fs = std::filesystem;

bool IsText(Meaning meaning)
{
    return meaning == Meaning::TextKey || meaning == Meaning::Message || meaning == Meaning::TextSection;
}

// The case files beside the dialogs, and in folders of that name beside or below theirs.
std::vector<fs::path> CaseFilesFor(const std::string& path)
{
    const fs::path dialogs = PathOf(path).parent_path();
    std::vector<fs::path> files;
    for (const fs::path& folder : {dialogs, dialogs / "cases", dialogs.parent_path() / "cases"})
        std::ranges::copy(FilesIn(folder, ".case"), std::back_inserter(files));
    return files;
}

class PlaceFinder
{
public:
    PlaceFinder(const Workspace& workspace, const std::string& path, const NamedWord& word)
        : m_workspace(workspace), m_path(path), m_word(word)
    {
    }

    std::vector<TextPlace> Find()
    {
        AddWordsOf(m_path);
        if (IsText(m_word.meaning) || m_word.meaning == Meaning::Dialog)
            AddOtherDescriptions();
        if (IsText(m_word.meaning))
            AddLanguageFiles();
        if (m_word.meaning == Meaning::Control)
            AddCases();
        return std::move(m_places);
    }

private:
    void AddWordsOf(const std::string& path)
    {
        for (const NamedWord& found : WordsLike(m_workspace.DescriptionAt(path), m_word))
            m_places.push_back({path, found.place, found.isDeclared});
    }

    void AddOtherDescriptions()
    {
        const std::string wanted = FoldedName(m_word.text);
        for (const fs::path& file : FilesIn(PathOf(m_path).parent_path(), ".dlg"))
        {
            const std::string other = PlainPath(file.string());
            // Most hold no such word, and need not be read.
            if (other != m_path && FoldedName(m_workspace.BytesOf(other)).find(wanted) != std::string::npos)
                AddWordsOf(other);
            if (m_word.meaning == Meaning::Dialog && IsSameName(commandline::ToAnsi(file.stem().string()), m_word.text))
                m_places.push_back({other, {1, 0, 0}, true});
        }
    }

    void AddLanguageFiles()
    {
        const bool isSection = m_word.meaning == Meaning::TextSection;
        for (const LanguageFile& file : m_workspace.SurroundingsAt(m_path).texts.Files())
        {
            const auto found = std::ranges::find_if(file.Keys(), [&](const LanguageKey& key)
                                                    { return IsSameName(key.section, m_word.text); });
            const LanguageKey* key = !isSection                   ? file.Find(m_word.scope, m_word.text)
                                     : found != file.Keys().end() ? &*found
                                                                  : nullptr;
            if (key != nullptr)
                m_places.push_back({PlainPath(file.FileName()), key->place, true});
        }
    }

    void AddCases()
    {
        for (const GoldenCase& one : CasesOf(m_workspace, m_path))
        {
            const std::vector<std::string> lines =
                commandline::LinesOf(script::ScriptText(m_workspace.BytesOf(one.file)));
            for (const CaseStep& step : one.steps)
                AddStep(one, step, lines.at(static_cast<size_t>(step.line - 1)));
        }
    }

    void AddStep(const GoldenCase& one, const CaseStep& step, const std::string& line)
    {
        const std::string name = commandline::ToUtf8(m_word.text);
        const script::Target& target = step.act.target;
        const bool isNamed = step.isAct ? target.kind == script::TargetKind::Name && target.name == name
                                        : step.expectation.name == m_word.text;
        // After the word of the step.
        const size_t place = line.find(name, line.find_first_of(" \t", line.find_first_not_of(" \t")));
        if (!isNamed || place == std::string::npos)
            return;
        const auto column = static_cast<int>(commandline::ToAnsi(line.substr(0, place)).size());
        // What comes before the first case is in each of them.
        const std::string file = PlainPath(one.file);
        const auto isKnown = [&](const TextPlace& known)
        { return known.path == file && known.place.line == step.line && known.place.column == column; };
        if (std::ranges::none_of(m_places, isKnown))
            m_places.push_back({file, {step.line, column, static_cast<int>(m_word.text.size())}, false});
    }

    const Workspace& m_workspace;
    const std::string& m_path;
    const NamedWord& m_word;
    std::vector<TextPlace> m_places;
};

std::string CodeLine(const Description& description, int line)
{
    return std::to_string(line) + ": " + Trimmed(description.text.Line(line).text) + "\n";
}

std::string AboutControl(const Description& description, const NamedWord& word)
{
    const ClytControlStatement* control = description.FindControl(word.text);
    if (control == nullptr)
        return "no control is called " + InQuotes(word.text);
    std::string text = "**" + word.text + "**: " + lytTypeOf(KindOf(*control)).name;
    if (lytTypeOf(KindOf(*control)).hasSize)
        text += ", at " + std::to_string(control->x) + ", " + std::to_string(control->y) + ", " +
                std::to_string(control->width) + " wide and " + std::to_string(control->height) + " high";
    return text;
}

// The lines that say something of the word.
std::string SayingsOf(const Description& description, const NamedWord& word)
{
    constexpr size_t most = 20;
    std::string lines;
    int last = 0;
    size_t count = 0;
    for (const NamedWord& found : WordsLike(description, word))
    {
        if (found.place.line == last || ++count > most)
            continue;
        last = found.place.line;
        lines += CodeLine(description, last);
    }
    return lines.empty() ? "" : "\n```lytdlg\n" + lines + (count > most ? "...\n" : "") + "```\n";
}

std::string KindOfName(Meaning meaning)
{
    switch (meaning)
    {
    case Meaning::Statement: return "a statement of the input";
    case Meaning::Part: return "a part of the input";
    case Meaning::Group: return "a group of the output";
    case Meaning::Dialog: return "a dialog";
    case Meaning::Library: return "a library";
    case Meaning::Function: return "a function of a library";
    case Meaning::Value: return "a value";
    case Meaning::TextSection: return "a section of the language files";
    default: return "";
    }
}

bool IsNameAllowed(const std::string& name)
{
    return !name.empty() && name.find_first_of("=,\t\n\r();:/<>\"' .$%\\") == std::string::npos;
}

// The same text with the edits in it.
std::string WithEdits(const std::string& bytes, std::vector<TextEdit> edits)
{
    EditorText text(commandline::ToUtf8(bytes));
    std::ranges::sort(edits,
                      [](const TextEdit& left, const TextEdit& right) { return left.range.begin > right.range.begin; });
    for (const TextEdit& edit : edits)
        text.Replace(edit.range, commandline::ToUtf8(edit.text));
    return text.Bytes();
}

// What the reader makes of the new name must be what it made of the old one, and of nothing else.
void ExpectSameMeaning(const Description& before, const std::vector<TextEdit>& edits, const NamedWord& word,
                       const NamedWord& renamed)
{
    if (!WordsLike(before, renamed).empty() ||
        (word.meaning == Meaning::Control && before.FindControl(renamed.text) != nullptr))
        throw RenameRefused(InQuotes(renamed.text) + " is there already, in " + before.path);
    const Description after(before.path, WithEdits(before.text.Bytes(), edits), before.text.Defines());
    if (WordsLike(after, renamed).size() != WordsLike(before, word).size() || !WordsLike(after, word).empty() ||
        after.mistakes.size() != before.mistakes.size())
        throw RenameRefused("the name " + InQuotes(renamed.text) + " would change what " + before.path +
                            " means; choose another");
}

void ExpectNoKey(const Surroundings& surroundings, const NamedWord& renamed)
{
    for (const LanguageFile& file : surroundings.texts.Files())
    {
        if (file.Find(renamed.scope, renamed.text) != nullptr)
            throw RenameRefused("the text " + InQuotes(renamed.text) + " is there already, in " + file.Language());
    }
}

} // namespace

std::vector<TextPlace> PlacesOf(const Workspace& workspace, const std::string& path, const NamedWord& word)
{
    if (word.meaning == Meaning::Nothing || word.text.empty())
        return {};
    return PlaceFinder(workspace, path, word).Find();
}

std::vector<GoldenCase> CasesOf(const Workspace& workspace, const std::string& path)
{
    std::vector<GoldenCase> cases;
    for (const fs::path& file : CaseFilesFor(path))
    {
        const std::string name = file.string();
        try
        {
            for (GoldenCase& one : ReadCases(name, commandline::LinesOf(script::ScriptText(workspace.BytesOf(name)))))
            {
                if (PlainPath(one.setup.dialog) == path)
                    cases.push_back(std::move(one));
            }
        }
        catch (const commandline::UsageError&)
        {
            continue;
        }
    }
    return cases;
}

std::vector<LanguageText> TextsOfKey(const LanguageFiles& files, const NamedWord& word)
{
    std::vector<LanguageText> texts;
    for (const LanguageFile& file : files.Files())
    {
        const LanguageKey* key = file.Find(word.scope, word.text);
        if (key != nullptr)
            texts.push_back({file.Language(), key->text});
    }
    return texts;
}

std::string ExplanationOf(const Workspace& workspace, const std::string& path, const NamedWord& word)
{
    const Description& description = workspace.DescriptionAt(path);
    const LanguageFiles& files = workspace.SurroundingsAt(path).texts;
    std::string text;
    if (word.meaning == Meaning::Control)
        text = AboutControl(description, word);
    else if (IsText(word.meaning) && word.meaning != Meaning::TextSection)
    {
        for (const LanguageText& each : TextsOfKey(files, word))
            text += "- " + each.language + ": " + each.text + "\n";
        return text.empty() ? "no language file has the text " + InQuotes(word.text) : text;
    }
    else if (!KindOfName(word.meaning).empty())
        text = "**" + word.text + "**: " + KindOfName(word.meaning) +
               (word.meaning == Meaning::Value ? " of " + word.scope : "");
    if (text.empty())
        return "";
    if (const ClytControlStatement* control = description.FindControl(word.text);
        word.meaning == Meaning::Control && control != nullptr && lytTypeOf(KindOf(*control)).hasCaption)
    {
        const NamedWord caption = {Meaning::TextKey, control->text.GetString(), {}, false, description.TextSection()};
        for (const LanguageText& each : TextsOfKey(files, caption))
            text += "\n- " + each.language + ": " + each.text;
        text += "\n";
    }
    return text + "\n" + SayingsOf(description, word);
}

void ExpectRenamable(const NamedWord& word)
{
    switch (word.meaning)
    {
    case Meaning::Control:
    case Meaning::TextKey:
    case Meaning::Message:
    case Meaning::Statement: break;
    case Meaning::Part:
    case Meaning::Group:
        if (word.text == lytParentName)
            throw RenameRefused("\"parent\" belongs to the dialog as a whole");
        break;
    case Meaning::Value: throw RenameRefused("a value is a part of the result, for whoever reads it");
    default: throw RenameRefused("this is no name of the description");
    }
    if (word.text.empty())
        throw RenameRefused("there is no name here");
    if (word.meaning == Meaning::Statement && (word.text == "Start" || word.text == "End"))
        throw RenameRefused("a run begins at \"Start\" and ends at \"End\"");
}

EditsByPath RenamingOf(const Workspace& workspace, const std::string& path, const NamedWord& word,
                       const std::string& newName)
{
    ExpectRenamable(word);
    if (!IsNameAllowed(newName))
        throw RenameRefused(InQuotes(newName) + " is no name; write letters and digits");
    NamedWord renamed = word;
    renamed.text = newName;
    EditsByPath edits;
    if (newName == word.text)
        return edits;
    if (IsText(word.meaning) && !IsSameName(newName, word.text))
        ExpectNoKey(workspace.SurroundingsAt(path), renamed);
    for (const TextPlace& place : PlacesOf(workspace, path, word))
        edits[place.path].push_back({RangeOf(place.place), newName});
    for (const auto& [file, list] : edits)
    {
        if (KindOfText(file) == TextKind::Description && !(IsText(word.meaning) && IsSameName(newName, word.text)))
            ExpectSameMeaning(workspace.DescriptionAt(file), list, word, renamed);
    }
    return edits;
}

} // namespace lytdlg
