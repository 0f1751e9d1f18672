#include "lytdlg/language/FileWords.h"

#include "commandline/Text.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/try/CaseRun.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

std::vector<NamedWord> WordsOfTexts(const Workspace& workspace, const std::string& path)
{
    std::vector<NamedWord> words;
    const LanguageLines lines = ReadLanguageLines(workspace.BytesOf(path));
    for (const LanguageSection& section : lines.sections)
        words.push_back({Meaning::TextSection, section.name, section.place, true, "", nullptr, path});
    for (const LanguageKey& key : lines.keys)
    {
        const Meaning meaning = IsSameName(key.section, messageSection) ? Meaning::Message : Meaning::TextKey;
        words.push_back({meaning, key.name, key.place, true, key.section, nullptr, path});
    }
    std::ranges::stable_sort(words, {}, [](const NamedWord& word) { return word.place.line; });
    return words;
}

// In UTF-8, as their file is.
std::vector<std::string> LinesOfCases(const Workspace& workspace, const std::string& path)
{
    return commandline::LinesOf(script::ScriptText(workspace.BytesOf(path)));
}

// In an editor, after the beginning of a line in UTF-8.
int ColumnAfter(const std::string& beginning)
{
    return static_cast<int>(EditorText(beginning).Bytes().size());
}

std::vector<NamedWord> WordsOfCases(const Workspace& workspace, const std::string& path)
{
    std::vector<NamedWord> words;
    const std::vector<std::string> lines = LinesOfCases(workspace, path);
    for (const CaseName& name : ReadCaseText(path, lines).names)
    {
        const std::string& line = lines.at(static_cast<size_t>(name.line - 1));
        const size_t place = line.find(name.text, name.column);
        if (place == std::string::npos)
            continue;
        const Meaning meaning = name.isDialog ? Meaning::Dialog : Meaning::Control;
        const ClytSpan span = {name.line, ColumnAfter(line.substr(0, place)), ColumnAfter(name.text)};
        words.push_back({meaning, commandline::ToAnsi(name.text), span, false, "", nullptr, PlainPath(name.dialog)});
    }
    return words;
}

// The last word of that meaning above a line; nothing without one.
std::optional<NamedWord> LastAbove(std::vector<NamedWord> words, Meaning meaning, int line)
{
    std::erase_if(words, [&](const NamedWord& word) { return word.meaning != meaning || word.place.line >= line; });
    return words.empty() ? std::nullopt : std::optional(words.back());
}

// A word that a line ends with.
NamedWord WordFrom(size_t begin, Meaning meaning, const std::string& home, int line, const std::string& before)
{
    const ClytSpan place = {line, static_cast<int>(begin), static_cast<int>(before.size() - begin)};
    return {meaning, before.substr(begin), place, false, "", nullptr, home};
}

// The key or section that a line begins with.
NamedWord WordAtOfTexts(const Workspace& workspace, const std::string& path, int line, const std::string& before)
{
    if (before.find('=') != std::string::npos)
        return {};
    const size_t begin = std::min(before.find_first_not_of(" \t"), before.size());
    const bool isSection = before.substr(begin).starts_with('[');
    NamedWord word =
        WordFrom(begin + (isSection ? 1 : 0), isSection ? Meaning::TextSection : Meaning::TextKey, path, line, before);
    word.isDeclared = true;
    if (const auto section = LastAbove(WordsOfTexts(workspace, path), Meaning::TextSection, line))
        word.scope = section->text;
    return word;
}

// The word of a line, its control, or a value of that. The home is the dialog of the case.
NamedWord WordAtOfCases(const Workspace& workspace, const std::string& path, int line, const std::string& before)
{
    const auto dialog = LastAbove(WordsOfCases(workspace, path), Meaning::Dialog, line);
    const auto wordFrom = [&](size_t begin, Meaning meaning)
    { return WordFrom(begin, meaning, dialog ? dialog->home : path, line, before); };
    const size_t first = std::min(before.find_first_not_of(" \t"), before.size());
    const size_t blank = std::min(before.find_first_of(" \t:", first), before.size());
    const size_t name = std::min(before.find_first_not_of(" \t:", blank), before.size());
    const size_t end = before.find_first_of(" \t=", name);
    const size_t sign = before.find('=', name);
    if (blank == before.size())
        return wordFrom(first, Meaning::CaseWord);
    if (before.substr(first, blank - first) == "dialog")
    {
        const size_t stem = std::max(name, before.find_last_of("/\\") + 1);
        NamedWord word = wordFrom(stem, Meaning::Dialog);
        word.home = PathBeside(path, before.substr(name, stem - name) + "x.dlg");
        return word;
    }
    if (end == std::string::npos)
        return wordFrom(name, Meaning::Control);
    if (sign == std::string::npos)
        return {};
    NamedWord word = wordFrom(std::min(before.find_first_not_of(" \t\"", sign + 1), before.size()), Meaning::Value);
    word.scope = before.substr(name, end - name);
    return word;
}

bool OpensOthers(const Workspace& workspace, const std::string& path)
{
    return std::ranges::any_of(workspace.DescriptionAt(path).values, [](const ValueStatement& statement)
                               { return lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Dialog; });
}

// The paths of the dialogs that are on top at the lines of the cases, where it may be another than that of the case.
std::map<int, std::string> DialogsOnTop(const Workspace& workspace, const std::string& path)
{
    std::map<int, std::string> paths;
    for (const GoldenCase& one : CasesIn(workspace, path).cases)
    {
        const std::string dialog = PlainPath(one.setup.dialog);
        if (!OpensOthers(workspace, dialog))
            continue;
        for (const auto& [line, name] : DescriptionsOnTop(one))
            paths.emplace(line, PathBeside(dialog, name));
    }
    return paths;
}

} // namespace

std::vector<NamedWord> WordsOf(const Workspace& workspace, const std::string& path)
{
    const TextKind kind = KindOfText(path);
    return kind == TextKind::Description ? AllWordsIn(workspace.DescriptionAt(path))
           : kind == TextKind::Texts     ? WordsOfTexts(workspace, path)
           : kind == TextKind::Cases     ? WordsOfCases(workspace, path)
                                         : std::vector<NamedWord>();
}

std::string TextOf(const Workspace& workspace, const std::string& path)
{
    const std::string bytes = workspace.BytesOf(path);
    return KindOfText(path) == TextKind::Cases ? EditorText(script::ScriptText(bytes)).Bytes() : bytes;
}

std::vector<NamedWord> WordsLike(const Workspace& workspace, const std::string& path, const NamedWord& word)
{
    if (KindOfText(path) == TextKind::Description)
        return WordsLike(workspace.DescriptionAt(path), word);
    const bool isOfCase = KindOfText(path) == TextKind::Cases && word.meaning == Meaning::Control;
    std::vector<NamedWord> words = isOfCase ? ControlsOfCases(workspace, path, word.text) : WordsOf(workspace, path);
    std::erase_if(words, [&](const NamedWord& found) { return !IsSame(found, word); });
    return words;
}

NamedWord WordAt(const Workspace& workspace, const std::string& path, const TextPosition& position)
{
    const TextKind kind = KindOfText(path);
    const int line = position.line + 1;
    const std::vector<std::string> lines = commandline::LinesOf(TextOf(workspace, path) + "\n");
    const bool isInside =
        position.line >= 0 && position.line < static_cast<int>(lines.size()) && position.character >= 0;
    if (!isInside || kind == TextKind::Other)
        return {};
    const std::string before =
        lines[static_cast<size_t>(position.line)].substr(0, static_cast<size_t>(position.character));
    NamedWord word = kind == TextKind::Texts   ? WordAtOfTexts(workspace, path, line, before)
                     : kind == TextKind::Cases ? WordAtOfCases(workspace, path, line, before)
                                               : WordAt(workspace.DescriptionAt(path), line, position.character);
    if (kind == TextKind::Description)
        word.home = path;
    return word;
}

NamedWord NameAt(const Workspace& workspace, const std::string& path, const TextPosition& position)
{
    const bool isDescription = KindOfText(path) == TextKind::Description;
    // No text has that many lines.
    const int line = std::clamp(position.line, -1, 1 << 30) + 1;
    for (NamedWord& word : isDescription ? WordsIn(workspace.DescriptionAt(path), line) : WordsOf(workspace, path))
    {
        const bool isTouched = word.place.line == line && word.place.column <= position.character &&
                               position.character <= word.place.column + word.place.length;
        if (!isTouched)
            continue;
        if (KindOfText(path) != TextKind::Cases || word.meaning != Meaning::Control)
            return std::move(word);
        for (NamedWord& control : ControlsOfCases(workspace, path, word.text))
        {
            if (control.place.line == line)
                return std::move(control);
        }
    }
    return {};
}

std::string PathOfDialog(const NamedWord& word)
{
    return PathBeside(word.home, commandline::ToUtf8(word.text) + ".dlg");
}

std::vector<Finding> FindingsInCases(const Workspace& workspace, const std::string& path)
{
    static const Rule rule = {
        "case", Level::Error, "a line of a case that cannot be carried out", "`lytdlg test` stops at such a line.", "",
        ""};
    std::vector<Finding> findings;
    const auto add = [&](const ClytSpan& place, const std::string& message)
    {
        findings.emplace_back();
        findings.back().rule = &rule;
        findings.back().place = place;
        findings.back().message = message;
    };
    const std::vector<std::string> lines = LinesOfCases(workspace, path);
    for (const script::FileError& mistake : ReadCaseText(path, lines).mistakes)
    {
        const std::string line = lines.empty() ? "" : lines.at(static_cast<size_t>(mistake.line - 1));
        const int column = ColumnAfter(line.substr(0, mistake.column - 1));
        add({mistake.line, column, ColumnAfter(line) - column}, commandline::ToAnsi(mistake.message));
    }
    for (const NamedWord& word : WordsOfCases(workspace, path))
    {
        const std::string dialog = PathOf(word.home).filename().string();
        const Description& description = workspace.DescriptionAt(word.home);
        const bool isKnown = word.meaning == Meaning::Dialog || description.FindControl(word.text) != nullptr;
        if (word.meaning == Meaning::Dialog && !ReadWholeFile(PathOf(word.home)))
            add(word.place, "there is no dialog " + InQuotes(commandline::ToAnsi(dialog)));
        // In a dialog that it opens there may be one.
        else if (!isKnown && description.hasDialogHeader && !OpensOthers(workspace, word.home))
            add(word.place, commandline::ToAnsi(dialog) + " has no control " + InQuotes(word.text));
    }
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) { return finding.place.line; });
    return findings;
}

CaseText CasesIn(const Workspace& workspace, const std::string& path)
{
    return ReadCaseText(path, LinesOfCases(workspace, path));
}

std::vector<NamedWord> ControlsOfCases(const Workspace& workspace, const std::string& path, const std::string& name)
{
    std::vector<NamedWord> words = WordsOfCases(workspace, path);
    std::erase_if(words, [&](const NamedWord& word) { return word.meaning != Meaning::Control || word.text != name; });
    const std::map<int, std::string> onTop =
        words.empty() ? std::map<int, std::string>() : DialogsOnTop(workspace, path);
    for (NamedWord& word : words)
    {
        if (const auto known = onTop.find(word.place.line); known != onTop.end())
            word.home = known->second;
    }
    return words;
}

} // namespace lytdlg
