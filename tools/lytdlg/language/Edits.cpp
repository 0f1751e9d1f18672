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

// How much of two texts, or lines, is the same at the beginning, and of the rest at the end.
template <class SEQUENCE>
std::pair<ptrdiff_t, ptrdiff_t> SameAtEnds(const SEQUENCE& left, const SEQUENCE& right)
{
    const auto differing = std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first;
    const ptrdiff_t begin = differing - left.begin();
    const auto last = std::mismatch(left.rbegin(), left.rend() - begin, right.rbegin(), right.rend() - begin).first;
    return {begin, last - left.rbegin()};
}

// From the first letter that differs to the last one.
TextEdit EditInLine(int line, const std::string& before, const std::string& after)
{
    const auto [begin, end] = SameAtEnds(before, after);
    const int old = static_cast<int>(before.size()) - static_cast<int>(end);
    return {{{line, static_cast<int>(begin)}, {line, old}}, {after.begin() + begin, after.end() - end}};
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
    const auto [begin, end] = SameAtEnds(old, made);
    const std::string text = Joined({made.begin() + begin, made.end() - end}, "");
    const int following = static_cast<int>(old.size()) - static_cast<int>(end);
    return {{{{static_cast<int>(begin), 0}, end == 0 ? WholeOf(before).end : TextPosition{following, 0}}, text}};
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
