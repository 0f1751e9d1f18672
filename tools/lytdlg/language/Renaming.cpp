#include "lytdlg/language/Renaming.h"

#include "commandline/Text.h"
#include "exports/NamedDialogs.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/language/Places.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool IsNameAllowed(const std::string& name)
{
    return !name.empty() && name.find_first_of("=,\t\n\r();:/<>\"' .$%\\[]#") == std::string::npos;
}

// The library asks for the text by its own words.
bool IsTextOfLibrary(const NamedWord& word)
{
    return std::ranges::any_of(LibraryTexts(),
                               [&](const LibraryText& text)
                               {
                                   return word.meaning == Meaning::TextSection
                                              ? IsSameName(text.section, word.text)
                                              : IsSameName(text.section, word.scope) && IsSameName(text.key, word.text);
                               });
}

bool IsDialogOfLibrary(const NamedWord& word)
{
    return std::ranges::any_of(lytNamedDialogs, [&](const ClytNamedDialog& named)
                               { return IsSameName(named.description, word.text + ".dlg"); });
}

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
        throw RenameRefused(InQuotes(renamed.text) + " is there already, in " + commandline::ToAnsi(before.path));
    const Description after(before.path, WithEdits(before.text.Bytes(), edits), before.text.Defines());
    if (WordsLike(after, renamed).size() != WordsLike(before, word).size() || !WordsLike(after, word).empty() ||
        after.mistakes.size() != before.mistakes.size())
        throw RenameRefused("the name " + InQuotes(renamed.text) + " would change what " +
                            commandline::ToAnsi(before.path) + " means; choose another");
}

// In a language file, be it used by a dialog or not.
void ExpectNoText(const Workspace& workspace, const NamedWord& renamed)
{
    for (const LanguageFile& file : workspace.SurroundingsAt(renamed.home).texts.Files())
    {
        const bool isThere = renamed.meaning == Meaning::TextSection
                                 ? file.HasSection(renamed.text)
                                 : file.Find(renamed.scope, renamed.text) != nullptr;
        if (isThere)
            throw RenameRefused("the text " + InQuotes(renamed.text) + " is there already, in " + file.Language());
    }
}

void RenameFile(const Workspace& workspace, const NamedWord& word, const NamedWord& renamed, Renaming& renaming)
{
    renaming.file = PathOfDialog(word);
    renaming.newFile =
        PlainPath(PathOf(renaming.file).replace_filename(PathOf(commandline::ToUtf8(renamed.text) + ".dlg")).string());
    if (workspace.BytesOf(renaming.file).empty())
        throw RenameRefused("there is no dialog " + InQuotes(word.text));
    // On some systems a file has the name in upper and lower case.
    if (PathOfDialog(renamed) != renaming.file && !workspace.BytesOf(PathOfDialog(renamed)).empty())
        throw RenameRefused("the dialog " + InQuotes(renamed.text) + " is there already");
    if (renaming.newFile == renaming.file)
        renaming.file.clear();
}

} // namespace

RenameRefused::RenameRefused(const std::string& reason) : runtime_error(commandline::ToUtf8(reason)) {}

void ExpectRenamable(const NamedWord& word)
{
    switch (word.meaning)
    {
    case Meaning::Control: break;
    case Meaning::TextSection:
    case Meaning::TextKey:
    case Meaning::Message:
        if (IsTextOfLibrary(word))
            throw RenameRefused("the library itself looks for " + InQuotes(word.text));
        break;
    case Meaning::Statement:
        if (word.text == "Start" || word.text == "End")
            throw RenameRefused("a run begins at \"Start\" and ends at \"End\"");
        break;
    case Meaning::Part:
    case Meaning::Group:
        if (word.text == lytParentName)
            throw RenameRefused("\"parent\" belongs to the dialog as a whole");
        break;
    case Meaning::Dialog:
        if (IsDialogOfLibrary(word))
            throw RenameRefused("the library itself opens " + InQuotes(word.text));
        break;
    case Meaning::Value: throw RenameRefused("a value is a part of the result, for whoever reads it");
    default: throw RenameRefused("this is no name of the description");
    }
    if (word.text.empty())
        throw RenameRefused("there is no name here");
}

Renaming RenamingOf(const Workspace& workspace, const NamedWord& word, const std::string& newName)
{
    ExpectRenamable(word);
    if (!IsNameAllowed(newName))
        throw RenameRefused(InQuotes(newName) + " is no name; write letters and digits");
    NamedWord renamed = word;
    renamed.text = newName;
    Renaming renaming;
    if (newName == word.text)
        return renaming;
    // Another case of the letters is the same name, for some.
    const bool isOther = !IsSame(word, renamed);
    if (isOther)
        ExpectRenamable(renamed);
    if (isOther && IsText(word.meaning))
        ExpectNoText(workspace, renamed);
    if (word.meaning == Meaning::Dialog)
        RenameFile(workspace, word, renamed, renaming);
    for (const TextPlace& place : PlacesOf(workspace, word))
    {
        if (place.place.length > 0)
            renaming.edits[place.path].push_back({RangeOf(place.place), newName});
    }
    for (const auto& [file, list] : renaming.edits)
    {
        if (isOther && KindOfText(file) == TextKind::Description)
            ExpectSameMeaning(workspace.DescriptionAt(file), list, word, renamed);
    }
    return renaming;
}

} // namespace lytdlg
