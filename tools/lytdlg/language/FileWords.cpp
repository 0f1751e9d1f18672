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
    const std::string bytes = workspace.BytesOf(path);
    int number = 0;
    for (const std::string& line : commandline::LinesOf(bytes))
    {
        ++number;
        const size_t begin = line.find_first_not_of(" \t");
        const size_t end = line.rfind(']');
        if (begin == std::string::npos || end == std::string::npos || line[begin] != '[')
            continue;
        const std::string name = line.substr(begin + 1, end - begin - 1);
        const ClytSpan place = {number, static_cast<int>(begin) + 1, static_cast<int>(name.size())};
        words.push_back({Meaning::TextSection, name, place, true, "", nullptr, path});
    }
    for (const LanguageKey& key : ReadLanguageKeys(bytes))
    {
        const Meaning meaning = IsSameName(key.section, messageSection) ? Meaning::Message : Meaning::TextKey;
        words.push_back({meaning, key.name, key.place, true, key.section, nullptr, path});
    }
    std::ranges::stable_sort(words, {}, [](const NamedWord& word) { return word.place.line; });
    return words;
}

std::vector<std::string> LinesOfCases(const Workspace& workspace, const std::string& path)
{
    return commandline::LinesOf(script::ScriptText(workspace.BytesOf(path)));
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
        const std::string text = commandline::ToAnsi(name.text);
        const auto column = static_cast<int>(commandline::ToAnsi(line.substr(0, place)).size());
        words.push_back({name.isDialog ? Meaning::Dialog : Meaning::Control,
                         text,
                         {name.line, column, static_cast<int>(text.size())},
                         false,
                         "",
                         nullptr,
                         PlainPath(name.dialog)});
    }
    return words;
}

// Where a word of a line would be that ends at a place.
ClytSpan PlaceBefore(int line, size_t begin, size_t end)
{
    return {line, static_cast<int>(begin), static_cast<int>(end - begin)};
}

// The key or section that a line begins with.
NamedWord WordAtOfTexts(const Workspace& workspace, const std::string& path, int line, const std::string& before)
{
    std::string section;
    for (const NamedWord& word : WordsOfTexts(workspace, path))
    {
        if (word.meaning == Meaning::TextSection && word.place.line < line)
            section = word.text;
    }
    const size_t begin = std::min(before.find_first_not_of(" \t"), before.size());
    if (before.find('=') != std::string::npos)
        return {};
    const bool isSection = before.substr(begin).starts_with('[');
    const size_t start = begin + (isSection ? 1 : 0);
    return {isSection ? Meaning::TextSection : Meaning::TextKey,
            before.substr(start),
            PlaceBefore(line, start, before.size()),
            true,
            section,
            nullptr,
            path};
}

// The word of a line, its control, or a value of that. The home is the dialog of the case.
NamedWord WordAtOfCases(const Workspace& workspace, const std::string& path, int line, const std::string& before)
{
    std::string home = path;
    for (const NamedWord& word : WordsOfCases(workspace, path))
    {
        if (word.meaning == Meaning::Dialog && word.place.line < line)
            home = word.home;
    }
    const size_t first = std::min(before.find_first_not_of(" \t"), before.size());
    const size_t blank = std::min(before.find_first_of(" \t:", first), before.size());
    const size_t next = before.find_first_not_of(" \t:", blank);
    const size_t name = std::min(next, before.size());
    const size_t end = before.find_first_of(" \t=", name);
    const size_t sign = before.find('=', name);
    if (blank == before.size())
        return {
            Meaning::CaseWord, before.substr(first), PlaceBefore(line, first, before.size()), false, "", nullptr, home};
    if (before.substr(first, blank - first) == "dialog")
    {
        const size_t stem = std::max(name, before.find_last_of("/\\") + 1);
        const std::filesystem::path folder = PathOf(path).parent_path() / PathOf(before.substr(name, stem - name));
        return {Meaning::Dialog,
                before.substr(stem),
                PlaceBefore(line, stem, before.size()),
                false,
                "",
                nullptr,
                PlainPath((folder / "x.dlg").string())};
    }
    if (end == std::string::npos)
        return {
            Meaning::Control, before.substr(name), PlaceBefore(line, name, before.size()), false, "", nullptr, home};
    if (sign == std::string::npos)
        return {};
    const size_t value = std::min(before.find_first_not_of(" \t\"", sign + 1), before.size());
    return {Meaning::Value,
            before.substr(value),
            PlaceBefore(line, value, before.size()),
            false,
            before.substr(name, end - name),
            nullptr,
            home};
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
            paths.emplace(line, PlainPath((PathOf(dialog).parent_path() / PathOf(name)).string()));
    }
    return paths;
}

} // namespace

std::vector<NamedWord> WordsOf(const Workspace& workspace, const std::string& path)
{
    switch (KindOfText(path))
    {
    case TextKind::Description: return AllWordsIn(workspace.DescriptionAt(path));
    case TextKind::Texts: return WordsOfTexts(workspace, path);
    case TextKind::Cases: return WordsOfCases(workspace, path);
    case TextKind::Other: break;
    }
    return {};
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
    const std::vector<std::string> lines = commandline::LinesOf(workspace.BytesOf(path) + "\n");
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
    const std::filesystem::path folder = PathOf(word.home).parent_path();
    const std::string name = commandline::ToUtf8(word.text) + ".dlg";
    const std::filesystem::path file = FileIn(folder, name);
    return PlainPath((file.empty() ? folder / PathOf(name) : file).string());
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
        const size_t column = commandline::ToAnsi(line.substr(0, mistake.column - 1)).size();
        add({mistake.line, static_cast<int>(column), static_cast<int>(commandline::ToAnsi(line).size() - column)},
            commandline::ToAnsi(mistake.message));
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
