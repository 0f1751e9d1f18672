#include "lytdlg/judge/Families.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>

namespace lytdlg
{

namespace
{

std::set<std::string> UsedGroups(const Description& description)
{
    std::set<std::string> used = {lytParentName};
    for (const ValueStatement& statement : description.values)
    {
        const std::vector<std::string>& values = statement.values;
        const auto meaning = lytMeaningOf<ClytAction>(statement.keyword.c_str());
        // The fourth word, or the third where one before it is missing: that is reported there.
        if (lytMeaningOf<ClytKeyword>(statement.keyword.c_str()) == ClytKeyword::FilledBy)
            used.insert(values.begin() + static_cast<std::ptrdiff_t>(std::min<size_t>(values.size(), 2)),
                        values.begin() + static_cast<std::ptrdiff_t>(std::min<size_t>(values.size(), 4)));
        // One that is in the place of the other is reported there.
        else if (meaning == ClytAction::Action && values.size() > 2)
            used.insert(values.begin() + 2, values.end());
        else if (meaning == ClytAction::Dialog)
            used.insert(values.begin() + 1, values.end());
        // Where words are missing, it may be any of them.
        if (LacksWords(meaning, values.size()))
            std::ranges::copy(GroupNames(description), std::inserter(used, used.end()));
    }
    return used;
}

void JudgeFirst(const Case& judged)
{
    const SourceLine* header = judged.description.text.HeaderOf(Section::Output);
    // The header of a further group is not the first: a missing first header is reported by itself.
    if (header == nullptr || judged.description.text.BeginsWithoutHeader(Section::Output))
        return;
    const std::vector<LineToken> words = TokensOf(header->text, Section::Input);
    if (words.size() > 1 && !words[1].text.empty() && words[1].text != lytParentName)
    {
        const ClytSpan place = judged.description.PlaceOf(header->number, words[1].text);
        judged.findings
            .Add("output-first", place, "the first group is always the result of the dialog, under any name",
                 "write \"$OUTPUT, parent\", and put other groups after it")
            .FixSafely(place, lytParentName);
    }
}

void JudgeOutputGroups(const Case& judged)
{
    const std::set<std::string> used = UsedGroups(judged.description);
    std::unordered_map<std::string, const OutputGroup*> met;
    for (const OutputGroup& group : judged.description.outputs)
    {
        const ClytSpan place = judged.description.PlaceOf(group.header.line);
        const OutputGroup* before = std::exchange(met[group.name], &group);
        if (before != nullptr)
            judged.findings.Add("output-twice", place,
                                "this group takes the place of the group " + InQuotes(group.name) + " in line " +
                                    std::to_string(before->header.line),
                                "delete one of them, or give it another name that something uses");
        else if (!used.contains(group.name) && !IsNamedWhereSwitchedOff(judged.description, group.name))
            judged.findings.Add("output-unused", place, "nothing uses the group " + InQuotes(group.name),
                                "name it in a FILLEDBY, DIALOG or ACTION, or delete it");
        else if (group.rules.IsEmpty() && group.name == lytParentName)
            judged.findings.Add("output-parent", place, "there is no rule for the dialog's result, and OK does nothing",
                                "add a rule, as (\"%s\", Name)");
        else if (group.rules.IsEmpty() && used.contains(group.name))
            judged.findings.Add("output-empty", place, "the group " + InQuotes(group.name) + " has no rule",
                                "add one, as (\"%s\", Name)");
    }
}

} // namespace

void ApplyOutputGroupRules(const Case& judged)
{
    JudgeFirst(judged);
    JudgeOutputGroups(judged);
}

} // namespace lytdlg
