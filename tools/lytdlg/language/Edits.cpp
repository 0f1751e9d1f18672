#include "lytdlg/language/Edits.h"

#include "lytdlg/judge/Fixes.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/DescriptionLines.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// Each with its end.
std::vector<std::string> WholeLinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size(); start += lines.back().size())
        lines.push_back(text.substr(start, std::min(text.find('\n', start), text.size() - 1) + 1 - start));
    return lines;
}

// From the first letter that differs to the last one.
TextEdit EditInLine(int line, const std::string& before, const std::string& after)
{
    const size_t most = std::min(before.size(), after.size());
    size_t same = 0;
    while (same < most && before[same] == after[same])
        ++same;
    size_t sameAtEnd = 0;
    while (sameAtEnd < most - same && before[before.size() - 1 - sameAtEnd] == after[after.size() - 1 - sameAtEnd])
        ++sameAtEnd;
    return {{{line, static_cast<int>(same)}, {line, static_cast<int>(before.size() - sameAtEnd)}},
            after.substr(same, after.size() - sameAtEnd - same)};
}

bool Touch(const TextRange& left, const TextRange& right)
{
    return left.begin <= right.end && right.begin <= left.end;
}

std::string TitleOf(const Fix& fix, const std::string& before)
{
    std::string old;
    const std::vector<std::string> lines = WholeLinesOf(before);
    const auto index = static_cast<size_t>(fix.place.line - 1);
    if (index < lines.size() && static_cast<size_t>(fix.place.column) < lines[index].size())
        old =
            Trimmed(lines[index].substr(static_cast<size_t>(fix.place.column), static_cast<size_t>(fix.place.length)));
    const std::string text = Trimmed(fix.text.substr(0, fix.text.find('\n', fix.text.find_first_not_of('\n'))));
    if (text.empty())
        return "Take " + InQuotes(old) + " away";
    return old.empty() ? "Insert " + InQuotes(text) : "Replace " + InQuotes(old) + " with " + InQuotes(text);
}

void AddMending(const Workspace& workspace, const Finding& finding, const std::string& path,
                std::vector<Mending>& mendings)
{
    const std::string& file = finding.path.empty() ? path : finding.path;
    const std::string before = workspace.BytesOf(file);
    const std::vector<TextEdit> edits = EditsBetween(before, WithFixes(before, {*finding.fix}));
    if (!edits.empty())
        mendings.push_back({TitleOf(*finding.fix, before),
                            finding.rule->id,
                            RangeOf(finding.place),
                            finding.fix->isSafe,
                            {{file, edits}}});
}

} // namespace

std::vector<TextEdit> EditsBetween(const std::string& before, const std::string& after)
{
    std::vector<TextEdit> edits;
    const std::vector<std::string> old = WholeLinesOf(before);
    const std::vector<std::string> made = WholeLinesOf(after);
    if (old.size() == made.size())
    {
        for (size_t line = 0; line < old.size(); ++line)
        {
            if (old[line] != made[line])
                edits.push_back(EditInLine(static_cast<int>(line), old[line], made[line]));
        }
        return edits;
    }
    const size_t most = std::min(old.size(), made.size());
    size_t same = 0;
    while (same < most && old[same] == made[same])
        ++same;
    size_t sameAtEnd = 0;
    while (sameAtEnd < most - same && old[old.size() - 1 - sameAtEnd] == made[made.size() - 1 - sameAtEnd])
        ++sameAtEnd;
    std::string text;
    for (size_t line = same; line < made.size() - sameAtEnd; ++line)
        text += made[line];
    const auto begin = static_cast<int>(same);
    const auto end = static_cast<int>(old.size() - sameAtEnd);
    const bool isToEnd = sameAtEnd == 0;
    return {{{{begin, 0}, isToEnd ? PositionAt(before, before.size()) : TextPosition{end, 0}}, text}};
}

std::vector<TextEdit> FormattingOf(const Workspace& workspace, const std::string& path)
{
    const EditorText* text = workspace.Find(path);
    if (text == nullptr || KindOfText(path) != TextKind::Description)
        return {};
    const FileForLibrary file(text->Bytes());
    std::vector<TextEdit> edits = EditsBetween(text->Bytes(), FormattedDescription(file.Name(), text->Bytes()));
    // What the file cannot hold stays in the editor.
    std::erase_if(edits, [&](const TextEdit& edit) { return !text->IsWhole(edit.range); });
    return edits;
}

std::vector<Mending> MendingsAt(const Workspace& workspace, const std::vector<Finding>& findings,
                                const std::string& path, const TextRange& range)
{
    std::vector<Mending> mendings;
    const auto add = [&](const Finding& finding)
    {
        if (finding.fix && Touch(RangeOf(finding.place), range))
            AddMending(workspace, finding, path, mendings);
    };
    for (const Finding& finding : findings)
    {
        add(finding);
        std::ranges::for_each(finding.more, add);
    }
    return mendings;
}

std::vector<TextEdit> SafeMendingOf(const Workspace& workspace, const std::string& path)
{
    const Description& description = workspace.DescriptionAt(path);
    return EditsBetween(description.text.Bytes(),
                        MendDescription(description, workspace.SurroundingsAt(path), Fixing::Safe).text);
}

} // namespace lytdlg
