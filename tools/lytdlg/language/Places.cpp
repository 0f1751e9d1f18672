#include "lytdlg/language/Places.h"

#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

namespace fs = std::filesystem;

// Beside the dialogs, and in folders of that name beside or below theirs.
std::vector<fs::path> CaseFilesFor(const std::string& path)
{
    const fs::path dialogs = PathOf(path).parent_path();
    std::vector<fs::path> files;
    for (const fs::path& folder : {dialogs, dialogs / "cases", dialogs.parent_path() / "cases"})
        std::ranges::copy(FilesIn(folder, ".case"), std::back_inserter(files));
    return files;
}

// The files besides the home of a word that may have it.
std::vector<fs::path> OtherFilesFor(const NamedWord& word)
{
    const fs::path folder = PathOf(Workspace::DialogFolderOf(word.home));
    const bool isDialog = word.meaning == Meaning::Dialog;
    std::vector<fs::path> files;
    if (IsText(word.meaning) || isDialog)
        files = FilesIn(folder, ".dlg");
    if (IsText(word.meaning))
        std::ranges::copy(FilesIn(folder / "lang", ".nls"), std::back_inserter(files));
    if (isDialog || word.meaning == Meaning::Control)
        std::ranges::copy(CaseFilesFor(word.home), std::back_inserter(files));
    return files;
}

} // namespace

bool IsText(Meaning meaning)
{
    return meaning == Meaning::TextKey || meaning == Meaning::Message || meaning == Meaning::TextSection;
}

std::vector<TextPlace> PlacesOf(const Workspace& workspace, const NamedWord& word)
{
    if (word.meaning == Meaning::Nothing || word.text.empty())
        return {};
    std::vector<TextPlace> places;
    const std::string wanted = FoldedName(word.text);
    const bool isDialog = word.meaning == Meaning::Dialog;
    const auto add = [&](const std::string& path)
    {
        for (const NamedWord& found : WordsLike(workspace, path, word))
        {
            const bool isElsewhere = isDialog ? PathOfDialog(found) != PathOfDialog(word) : found.home != word.home;
            if (IsText(word.meaning) || !isElsewhere)
                places.push_back({path, found.place, found.isDeclared});
        }
    };
    if (KindOfText(word.home) == TextKind::Description)
        add(word.home);
    for (const fs::path& file : OtherFilesFor(word))
    {
        const std::string path = PlainPath(file.string());
        // Most hold no such word, and need not be read.
        const bool isHome = path == word.home && KindOfText(path) == TextKind::Description;
        if (!isHome && FoldedName(TextOf(workspace, path)).find(wanted) != std::string::npos)
            add(path);
    }
    if (isDialog && !workspace.BytesOf(PathOfDialog(word)).empty())
        places.push_back({PathOfDialog(word), {1, 0, 0}, true});
    return places;
}

std::vector<GoldenCase> CasesOf(const Workspace& workspace, const std::string& path)
{
    std::vector<GoldenCase> cases;
    for (const fs::path& file : CaseFilesFor(path))
    {
        for (GoldenCase& one : CasesIn(workspace, file.string()).cases)
        {
            if (PlainPath(one.setup.dialog) == path)
                cases.push_back(std::move(one));
        }
    }
    return cases;
}

std::vector<LanguageText> TextsOfKey(const LanguageFiles& files, const std::string& section, const std::string& key)
{
    std::vector<LanguageText> texts;
    for (const LanguageFile& file : files.Files())
    {
        if (const LanguageKey* found = file.Find(section, key))
            texts.push_back({file.Language(), found->text});
    }
    return texts;
}

} // namespace lytdlg
