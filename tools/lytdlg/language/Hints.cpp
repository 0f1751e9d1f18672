#include "lytdlg/language/Hints.h"

#include "lytdlg/language/Places.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/try/CaseRun.h"

#include <algorithm>

namespace lytdlg
{

std::vector<Link> LinksOf(const Workspace& workspace, const std::string& path)
{
    std::vector<Link> links;
    for (const NamedWord& word : WordsOf(workspace, path))
    {
        if (word.meaning == Meaning::Dialog && ReadWholeFile(PathOf(PathOfDialog(word))))
            links.push_back({word.place, PathOfDialog(word)});
    }
    return links;
}

std::vector<Hint> HintsOf(const Workspace& workspace, const std::string& path, const TextRange& range)
{
    std::vector<Hint> hints;
    if (KindOfText(path) != TextKind::Description)
        return hints;
    const Description& description = workspace.DescriptionAt(path);
    const LanguageFiles& files = workspace.SurroundingsAt(path).texts;
    for (const ShownText& shown : TextUsesOf(description))
    {
        const TextRange place = RangeOf(shown.place);
        const std::vector<LanguageText> texts = TextsOfKey(files, shown.section, shown.key);
        if (shown.role == TextRole::Button || place.begin < range.begin || range.end < place.begin || texts.empty())
            continue;
        const int quote = description.IsQuoted(shown.place) ? 1 : 0;
        hints.push_back({{place.end.line, place.end.character + quote}, texts.front().text});
    }
    return hints;
}

std::string VerdictOfCases(const Workspace& workspace, const std::string& path)
{
    const std::vector<GoldenCase> cases = CasesOf(workspace, path);
    const auto hasPassed = [](const GoldenCase& one) { return RunCase(one).differences.empty(); };
    const auto passed = static_cast<size_t>(std::ranges::count_if(cases, hasPassed));
    const std::string all = std::to_string(cases.size()) + (cases.size() == 1 ? " case" : " cases");
    return passed == cases.size() ? all + " passed" : std::to_string(passed) + " of " + all + " passed";
}

} // namespace lytdlg
