#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/TextUses.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <unordered_set>

namespace lytdlg
{

namespace
{

void JudgeSection(const Case& judged)
{
    const Description& description = judged.description;
    const SourceLine* header = description.text.HeaderOf(Section::Layout);
    const std::string name = description.TextSection();
    if (header == nullptr || name.empty())
        return;
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        if (file.HasSection(name))
            continue;
        std::vector<std::string> known;
        for (const LanguageKey& key : file.Keys())
            known.push_back(key.section);
        const bool isHiddenByMark =
            file.HasByteOrderMark() && file.FirstLine().find("[" + name + "]") != std::string::npos;
        Finding& finding =
            judged.findings.Add("text-section", description.PlaceOf(header->number, name),
                                file.Language() + ".nls has no section [" + name + "]",
                                isHiddenByMark ? "a byte order mark hides it; " + std::string(encodeAsAnsi)
                                               : MeantOr(name, known, "add it, with all texts"));
        if (!isHiddenByMark)
            FixWord(judged, finding, {name, known, ""});
    }
}

std::string FileNameOf(const Description& description)
{
    return PathOf(description.path).filename().string();
}

// What concerns the whole folder is reported for its first dialog.
bool IsFirstOfFolder(const Case& judged)
{
    const std::vector<DescriptionTexts>& all = judged.surroundings.descriptions.All();
    return all.empty() || all.front().fileName >= FileNameOf(judged.description);
}

void JudgeByteOrderMark(const Case& judged)
{
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        if (file.HasByteOrderMark())
            AddIn(judged, "text-byte-order-mark", file, {1, 0, 1}, file.FirstLine(),
                  "a byte order mark comes before the first line, and hides it", encodeAsAnsi);
    }
}

void JudgeForm(const Case& judged)
{
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        for (const LanguageKey& key : file.Keys())
        {
            const bool isOpenSection = key.name.starts_with('[');
            const bool isTold = key.place.line == 1 && file.HasByteOrderMark();
            if (key.hasText || isTold)
                continue;
            Finding& finding =
                AddIn(judged, "text-form", file, key.place, key.line,
                      isOpenSection ? "the bracket of this section is not closed" : "this line has no equals sign",
                      isOpenSection ? "write [NAME]" : "write KEY=TEXT, or a semicolon before a comment");
            const ClytSpan& name = key.place;
            isOpenSection ? finding.FixPerhaps({name.line, name.column + name.length, 0}, "]")
                          : finding.FixPerhaps({name.line, name.column, 0}, "; ");
        }
    }
}

// The buttons' texts are judged with the dialogs that show them.
void JudgeMessage(const Case& judged, const LibraryText& text)
{
    const std::vector<LanguageFile>& files = judged.surroundings.texts.Files();
    const auto first = std::ranges::find_if(files, [&](const LanguageFile& file)
                                            { return file.Find(text.section, text.key) != nullptr; });
    if (first == files.end() || text.section == "Buttons")
        return;
    const LanguageKey& model = *first->Find(text.section, text.key);
    for (const LanguageFile& file : files)
    {
        const LanguageKey* key = file.Find(text.section, text.key);
        if (key == nullptr)
            AddIn(judged, "message-differs", *first, model.place, model.line,
                  file.Language() + ".nls has no text " + InQuotes(text.key) + " in [" + text.section + "]",
                  "add it there");
        else if (CountOf(key->text, "''") != CountOf(model.text, "''"))
            AddIn(judged, "message-differs", file, key->place, key->line,
                  "the marks '' differ from those in " + first->Language() + ".nls, line " +
                      std::to_string(model.place.line),
                  "give both languages the same marks");
    }
}

// All texts that the dialogs of the folder show, this one as it is now.
std::unordered_set<std::string> TextsInFolder(const Case& judged)
{
    const std::string own = FileNameOf(judged.description);
    std::unordered_set<std::string> used;
    for (const ShownText& use : TextsOf(own, judged.description.text.Bytes()).uses)
        used.insert(TextId(use.section, use.key));
    for (const DescriptionTexts& texts : judged.surroundings.descriptions.All())
    {
        for (const ShownText& use : texts.uses)
        {
            if (texts.fileName != own)
                used.insert(TextId(use.section, use.key));
        }
    }
    return used;
}

// Reported for the first dialog of the folder that has the section.
void JudgeUnused(const Case& judged)
{
    const std::string name = judged.description.TextSection();
    const std::string own = FileNameOf(judged.description);
    const std::string first = judged.surroundings.descriptions.FirstOf(name);
    const bool isFirstOfSection = !name.empty() && (first.empty() || first >= own);
    const bool isFirst = IsFirstOfFolder(judged);
    const bool areWhole = std::ranges::all_of(judged.surroundings.descriptions.All(), &DescriptionTexts::isWhole) &&
                          judged.description.mistakes.empty();
    if ((!isFirstOfSection && !isFirst) || !areWhole)
        return;
    const std::unordered_set<std::string> used = TextsInFolder(judged);
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        for (const LanguageKey& key : file.Keys())
        {
            const bool isOfSection = (isFirstOfSection && IsSameName(key.section, name)) ||
                                     (isFirst && IsSameName(key.section, messageSection));
            if (key.isReached && key.hasText && isOfSection && !used.contains(TextId(key.section, key.name)))
                AddIn(judged, "text-unused", file, key.place, key.line,
                      "no dialog of the folder uses the text " + InQuotes(key.name), "use it, or delete it")
                    .FixPerhaps(WholeLineOf(key), "");
        }
    }
}

} // namespace

void ApplyLanguageFileRules(const Case& judged)
{
    if (judged.surroundings.texts.Files().empty())
        return;
    JudgeByteOrderMark(judged);
    JudgeSection(judged);
    if (IsFirstOfFolder(judged))
    {
        JudgeForm(judged);
        for (const LibraryText& text : LibraryTexts())
            JudgeMessage(judged, text);
    }
    JudgeUnused(judged);
}

} // namespace lytdlg
