#include "lytdlg/judge/TextRules.h"

#include "lytdlg/judge/CodePage.h"
#include "lytdlg/judge/Controls.h"
#include "lytdlg/judge/TextUses.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <filesystem>

namespace lytdlg
{

namespace
{

constexpr Rule missing = {"text-missing",
                          Level::Warning,
                          "A text is not in the language file.",
                          "The dialog shows \"no value present\" in its place. A text in the layout is a key of the "
                          "section that $LAYOUT names;\nthe message of a check is a key of the section MsgBox.",
                          "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Piktures\", .More",
                          "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule section = {"text-section",
                          Level::Warning,
                          "The text section is not in the language file.",
                          "$LAYOUT names the section of the language files in which the texts of the dialog are keys.",
                          "$LAYOUT Exmaple",
                          "$LAYOUT Example"};

constexpr Rule tooLong = {"text-long",
                          Level::Warning,
                          "A text has more than 74 characters.",
                          "The library cuts it there. Shorten it; the manual can say the rest.",
                          "$VALUES\n    Form: LongText = long form",
                          "$VALUES\n    Form: Hall = long form"};

constexpr Rule apostrophe = {"text-apostrophe",
                             Level::Warning,
                             "A caption has an apostrophe.",
                             "A caption ends at its first apostrophe. Write it without one.",
                             "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Author\", .More",
                             "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule ampersand = {"text-ampersand",
                            Level::Warning,
                            "A title or an item has an ampersand.",
                            "Titles and list items show an & as it is; only in captions does it underline a letter.",
                            "$VALUES\n    Form: Remove = other form",
                            "$VALUES\n    Form: Hall = other form"};

constexpr Rule marks = {"text-marks",
                        Level::Warning,
                        "A text has other marks in one language than in another.",
                        "A text should have its letter for the keyboard (&), its line ends (\\n) and its place for the "
                        "argument ('') in every\nlanguage or in none.",
                        "$LAYOUT Example\n    Text 520, 12, 100, 12, \"Marked\", .More",
                        "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule bytes = {
    "text-bytes",
    Level::Warning,
    "A text of the language file has bytes that are no letters of its code page.",
    "Language files are in the ANSI code page, 1252 in Western Europe. A letter with an accent that was "
    "saved as UTF-8\nshows as two odd characters, and a byte that the code page does not use as a box.",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Accent\", .More",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule markAtBegin = {
    "text-byte-order-mark",
    Level::Warning,
    "A language file begins with a byte order mark.",
    "The file was saved as UTF-8 with a mark at its beginning, which hides its first line: when that is a "
    "section, all texts of\nthe section are missing. Save it in code page 1252, which editors call ANSI or "
    "Windows-1252.",
    "",
    ""};

constexpr Rule emptyText = {
    "text-empty",
    Level::Warning,
    "A text is empty.",
    "Nothing follows the key in the language file, and the dialog shows nothing. Only an item of "
    "a list may be empty, and then in\nevery language.",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Nothing\", .More",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule hiddenKey = {"text-twice",
                            Level::Warning,
                            "A text stands in the language file twice.",
                            "The library reads the first of two keys, and of two sections, that have one name.",
                            "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Copied\", .More",
                            "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule unused = {
    "text-unused",
    Level::Note,
    "No dialog of the folder uses the text.",
    "The key is in the section of this dialog, and neither this dialog nor another one with that "
    "section shows it;\nor it is a message of the section MsgBox that no check of $EVALUATION names.",
    "$VALUES\n-    Form: Square = square form",
    "$VALUES\n    Form: Hall = other form"};

std::vector<std::string> KeyNames(const Case& judged, const std::string& language, const std::string& name)
{
    std::vector<std::string> names;
    for (const LanguageKey& key : judged.surroundings.texts.Keys(language, name))
        names.push_back(key.name);
    return names;
}

bool HasSection(const LanguageFile& file, const std::string& name)
{
    return std::ranges::any_of(file.Keys(), [&](const LanguageKey& key) { return IsSameName(key.section, name); });
}

// Sections.

void JudgeSection(const Case& judged)
{
    const Description& description = judged.description;
    const SourceLine* header = description.text.HeaderOf(Section::Layout);
    const std::string name = description.TextSection();
    if (header == nullptr || name.empty())
        return;
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        if (HasSection(file, name))
            continue;
        std::vector<std::string> known;
        for (const LanguageKey& key : file.Keys())
            known.push_back(key.section);
        const bool isHiddenByMark =
            file.HasByteOrderMark() && file.FirstLine().find("[" + name + "]") != std::string::npos;
        judged.findings.Add(section, description.PlaceOf(header->number, name),
                            file.Language() + ".nls has no section [" + name + "]",
                            isHiddenByMark ? "a byte order mark hides it; " + std::string(saveAsAnsi)
                                           : MeantOr(name, known, "add it, with all texts"));
    }
}

std::string FileNameOf(const Description& description)
{
    return std::filesystem::path(description.path).filename().string();
}

// What concerns the whole folder is told for its first dialog.
bool IsFirstOfFolder(const Case& judged)
{
    const std::vector<DescriptionTexts>& all = judged.surroundings.descriptions.All();
    return all.empty() || all.front().fileName >= FileNameOf(judged.description);
}

// Each text in each language.

void JudgeMissing(const Case& judged, const ShownText& use)
{
    std::vector<std::string> lacking;
    std::string hint;
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        const bool isSectionTold = use.section == judged.description.TextSection() && !HasSection(file, use.section);
        if (isSectionTold || file.Find(use.section, use.key) != nullptr)
            continue;
        lacking.push_back(file.Language() + ".nls");
        if (hint.empty())
            hint = MeantOr(use.key, KeyNames(judged, file.Language(), use.section), "");
    }
    if (!lacking.empty())
        judged.findings.Add(missing, use.place,
                            Joined(lacking) + ": no text " + InQuotes(use.key) + " in [" + use.section + "]",
                            hint.empty() ? "add it there" : hint);
}

Finding& AddAt(const Case& judged, const Rule& rule, const LanguageFile& file, const LanguageKey& key,
               const std::string& message, const std::string& hint)
{
    Finding& finding = judged.findings.Add(rule, key.place, message, hint);
    finding.path = file.FileName();
    finding.line = key.line;
    return finding;
}

void JudgeText(const Case& judged, const ShownText& use, const LanguageFile& file, const LanguageKey& key)
{
    const bool isCaption = use.role == TextRole::Caption;
    const bool isShownAsItIs = use.role == TextRole::Title || use.role == TextRole::Item;
    if (key.text.size() > longestLanguageText)
        AddAt(judged, tooLong, file, key,
              "the text has " + std::to_string(key.text.size()) + " characters and is cut after 74: \"..." +
                  key.text.substr(longestLanguageText - 20, 20) + "\"",
              "shorten it");
    if (isCaption && key.text.find('\'') != std::string::npos)
        AddAt(judged, apostrophe, file, key,
              "the caption ends at the apostrophe: " + InQuotes(key.text.substr(0, key.text.find('\'') + 1)),
              "write it without an apostrophe");
    if (isShownAsItIs && key.text.find('&') != std::string::npos)
        AddAt(judged, ampersand, file, key,
              std::string("a ") + (use.role == TextRole::Title ? "title" : "list item") + " shows the & as it is",
              "leave it out");
}

// An item may be empty where it is so in every language.
void JudgeEmpty(const Case& judged, const ShownText& use, const LanguageFile& file, const LanguageKey& key)
{
    const auto isEmpty = [&](const LanguageFile& other)
    {
        const LanguageKey* text = other.Find(use.section, use.key);
        return text == nullptr || text->text.empty();
    };
    const bool isMeant = use.role == TextRole::Item && std::ranges::all_of(judged.surroundings.texts.Files(), isEmpty);
    if (key.text.empty() && !isMeant)
        AddAt(judged, emptyText, file, key, "the text is empty, and the dialog shows nothing",
              "write the text after the equals sign");
}

void JudgeByteOrderMark(const Case& judged)
{
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        if (!file.HasByteOrderMark() || !IsFirstOfFolder(judged))
            continue;
        Finding& finding = judged.findings.Add(
            markAtBegin, {1, 0, 1}, "a byte order mark stands before the first line, and hides it", saveAsAnsi);
        finding.path = file.FileName();
        finding.line = file.FirstLine();
    }
}

void JudgeBytes(const Case& judged, const LanguageFile& file, const LanguageKey& key)
{
    for (size_t place = 0; place < key.text.size(); ++place)
    {
        const bool isUtf8 = SequenceLength(key.text, place) != 0;
        if (!isUtf8 && !StandsForNothing(key.text[place]))
            continue;
        AddAt(judged, bytes, file, key,
              isUtf8 ? "the text was saved as UTF-8, and shows odd characters"
                     : "the byte " + HexOf(key.text[place]) + " of the text stands for no character",
              saveAsAnsi);
        return;
    }
}

void JudgeTwice(const Case& judged, const ShownText& use, const LanguageFile& file, const LanguageKey& found)
{
    for (const LanguageKey& key : file.Keys())
    {
        if (!key.isReached && IsSameName(key.section, use.section) && IsSameName(key.name, use.key))
            AddAt(judged, hiddenKey, file, key,
                  "the text stands in line " + std::to_string(found.place.line) + " already, and that one counts",
                  "take one of them away");
    }
}

// What a text has fewer or more of than its translation; empty when they agree.
std::string DifferentMark(TextRole role, const std::string& left, const std::string& right)
{
    const bool isCaption = role == TextRole::Caption || role == TextRole::Alternate || role == TextRole::Button;
    if (isCaption && (MnemonicOf(left) != '\0') != (MnemonicOf(right) != '\0'))
        return "&";
    if (role == TextRole::Message && CountOf(left, "''") != CountOf(right, "''"))
        return "''";
    return CountOf(left, "\\n") != CountOf(right, "\\n") ? "\\n" : "";
}

void JudgeMarks(const Case& judged, const ShownText& use)
{
    const LanguageFile* first = nullptr;
    const LanguageKey* model = nullptr;
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        const LanguageKey* key = file.Find(use.section, use.key);
        if (key != nullptr && model == nullptr)
        {
            first = &file;
            model = key;
        }
        const bool isNothing = key == nullptr || key->text.empty() || model->text.empty();
        if (isNothing || key == model)
            continue;
        const std::string mark = DifferentMark(use.role, model->text, key->text);
        if (!mark.empty())
            AddAt(judged, marks, file, *key,
                  "the marks " + mark + " differ from those in " + first->Language() + ".nls, line " +
                      std::to_string(model->place.line),
                  "give both languages the same marks");
    }
}

// Texts that nothing uses.

// All texts that the dialogs of the folder show, this one as it is now.
std::vector<ShownText> UsesInFolder(const Case& judged)
{
    const std::string own = FileNameOf(judged.description);
    std::vector<ShownText> uses = TextsOf(own, judged.description.text.Bytes()).uses;
    for (const DescriptionTexts& texts : judged.surroundings.descriptions.All())
    {
        if (texts.fileName != own)
            uses.insert(uses.end(), texts.uses.begin(), texts.uses.end());
    }
    return uses;
}

// Told for the first dialog of the folder that has the section.
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
    const std::vector<ShownText> uses = UsesInFolder(judged);
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        for (const LanguageKey& key : file.Keys())
        {
            const bool isOfSection = (isFirstOfSection && IsSameName(key.section, name)) ||
                                     (isFirst && IsSameName(key.section, messageSection));
            const auto isUse = [&](const ShownText& use)
            { return IsSameName(use.section, key.section) && IsSameName(use.key, key.name); };
            if (key.isReached && isOfSection && std::ranges::none_of(uses, isUse))
                AddAt(judged, unused, file, key, "no dialog of the folder uses the text " + InQuotes(key.name),
                      "delete it");
        }
    }
}

} // namespace

Family TextRules()
{
    return {{&missing, &section, &tooLong, &apostrophe, &ampersand, &marks, &bytes, &markAtBegin, &emptyText,
             &hiddenKey, &unused},
            [](const Case& judged)
            {
                if (judged.surroundings.texts.Files().empty())
                    return;
                JudgeByteOrderMark(judged);
                JudgeSection(judged);
                for (const ShownText& use : TextUsesOf(judged.description))
                {
                    JudgeMissing(judged, use);
                    JudgeMarks(judged, use);
                    for (const LanguageFile& file : judged.surroundings.texts.Files())
                    {
                        if (const LanguageKey* key = file.Find(use.section, use.key))
                        {
                            JudgeText(judged, use, file, *key);
                            JudgeEmpty(judged, use, file, *key);
                            JudgeBytes(judged, file, *key);
                            JudgeTwice(judged, use, file, *key);
                        }
                    }
                }
                JudgeUnused(judged);
            }};
}

} // namespace lytdlg
