#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/TextUses.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_set>

namespace lytdlg
{

namespace
{

// The names of the keys in a section of a language, looked up for the first text that is missing there.
class KeyNames
{
public:
    explicit KeyNames(const LanguageFiles& texts) : m_texts(texts) {}

    const std::vector<std::string>& In(const std::string& language, const std::string& section)
    {
        const auto [place, isNew] = m_names.try_emplace({language, section});
        if (isNew)
        {
            for (const LanguageKey& key : m_texts.Keys(language, section))
                place->second.push_back(key.name);
        }
        return place->second;
    }

private:
    const LanguageFiles& m_texts; // of the surroundings
    std::map<std::pair<std::string, std::string>, std::vector<std::string>> m_names;
};

void JudgeMissing(const Case& judged, const ShownText& use, KeyNames& names)
{
    std::vector<std::string> lacking;
    std::string hint;
    const std::vector<std::string>* known = nullptr; // where the hint comes from
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        const bool isSectionTold = use.section == judged.description.TextSection() && !file.HasSection(use.section);
        if (isSectionTold || file.Find(use.section, use.key) != nullptr)
            continue;
        lacking.push_back(file.Language() + ".nls");
        if (!hint.empty())
            continue;
        known = &names.In(file.Language(), use.section);
        hint = MeantOr(use.key, *known, "");
    }
    if (lacking.empty())
        return;
    Finding& finding = judged.findings.Add(
        "text-missing", use.place, Joined(lacking) + ": no text " + InQuotes(use.key) + " in [" + use.section + "]",
        hint.empty() ? "add it there" : hint);
    if (!hint.empty())
        FixWord(judged, finding, {use.key, *known, ""});
}

// What is wrong with the marks of a caption; empty when each is right.
std::string StrayMark(const std::string& text)
{
    int letters = 0;
    for (size_t place = text.find('&'); place != std::string::npos; place = text.find('&', place + 2))
    {
        const char next = place + 1 < text.size() ? text[place + 1] : ' ';
        if (next == ' ')
            return "an & before a blank, or at the end, underlines nothing";
        letters += next != '&' ? 1 : 0;
    }
    return letters > 1 ? "the caption underlines more than one letter" : "";
}

// Puts something in the place of a mark of the text that is there once.
void FixMark(Finding& finding, const LanguageKey& key, const std::string& mark, const std::string& by)
{
    const size_t at = key.line.find(mark, key.line.find('='));
    if (CountOf(key.text, mark) == 1 && at != std::string::npos)
        finding.FixPerhaps({key.place.line, static_cast<int>(at), static_cast<int>(mark.size())}, by);
}

void JudgeText(const Case& judged, const ShownText& use, const LanguageFile& file, const LanguageKey& key)
{
    const bool isCaption = use.role == TextRole::Caption;
    const bool isShownAsItIs = use.role == TextRole::Title || use.role == TextRole::Item;
    if (key.text.size() > longestLanguageText)
        AddIn(judged, "text-long", file, key.place, key.line,
              "the text has " + std::to_string(key.text.size()) + " characters and is cut after 74: \"..." +
                  key.text.substr(longestLanguageText - 20, 20) + "\"",
              "shorten it");
    if (isCaption && key.text.find('\'') != std::string::npos)
        AddIn(judged, "text-apostrophe", file, key.place, key.line,
              "the caption ends at the apostrophe: " + InQuotes(key.text.substr(0, key.text.find('\'') + 1)),
              "write it without an apostrophe");
    const std::string strayMark = IsCaptionOrButton(use.role) ? StrayMark(key.text) : "";
    if (!strayMark.empty())
        FixMark(AddIn(judged, "caption-ampersand", file, key.place, key.line, strayMark,
                      "write && for an ampersand itself"),
                key, "& ", "&& ");
    if (isShownAsItIs && key.text.find('&') != std::string::npos)
        FixMark(
            AddIn(judged, "text-ampersand", file, key.place, key.line,
                  std::string("a ") + (use.role == TextRole::Title ? "title" : "list item") + " shows the & as it is",
                  "leave it out"),
            key, "&", "");
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
        AddIn(judged, "text-empty", file, key.place, key.line, "the text is empty, and the dialog shows nothing",
              "write the text after the equals sign");
}

void JudgeBytes(const Case& judged, const LanguageFile& file, const LanguageKey& key)
{
    for (size_t place = 0; place < key.text.size(); ++place)
    {
        const bool isUtf8 = SequenceLength(key.text, place) != 0 && !file.HasByteOrderMark();
        if (!isUtf8 && !StandsForNothing(key.text[place]))
            continue;
        AddIn(judged, "text-bytes", file, key.place, key.line,
              isUtf8 ? "the text was saved as UTF-8, and shows odd characters"
                     : "the byte " + HexOf(key.text[place]) + " of the text is not a character",
              encodeAsAnsi);
        return;
    }
}

void JudgeTwice(const Case& judged, const std::unordered_set<std::string>& used)
{
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        for (const LanguageKey& key : file.Keys())
        {
            const LanguageKey* found = key.isReached ? nullptr : file.Find(key.section, key.name);
            if (found != nullptr && used.contains(TextId(key.section, key.name)))
                AddIn(judged, "text-twice", file, key.place, key.line,
                      "the text is already in line " + std::to_string(found->place.line) + ", and that one counts",
                      "take one of them away")
                    .FixSafely(WholeLineOf(key), "");
        }
    }
}

// What a text has fewer or more of than its translation; empty when they agree.
std::string DifferentMark(TextRole role, const std::string& left, const std::string& right)
{
    if (IsCaptionOrButton(role) && (MnemonicOf(left) != '\0') != (MnemonicOf(right) != '\0'))
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
            AddIn(judged, "text-marks", file, key->place, key->line,
                  "the marks " + mark + " differ from those in " + first->Language() + ".nls, line " +
                      std::to_string(model->place.line),
                  "give both languages the same marks");
    }
}

void JudgeTexts(const Case& judged, const ShownText& use)
{
    JudgeMarks(judged, use);
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        if (const LanguageKey* key = file.Find(use.section, use.key))
        {
            JudgeText(judged, use, file, *key);
            JudgeEmpty(judged, use, file, *key);
            JudgeBytes(judged, file, *key);
        }
    }
}

} // namespace

void ApplyTextRules(const Case& judged)
{
    KeyNames names(judged.surroundings.texts);
    std::unordered_set<std::string> used;
    std::set<std::pair<TextRole, std::string>> met;
    for (const ShownText& use : TextUsesOf(judged.description))
    {
        JudgeMissing(judged, use, names);
        const std::string id = TextId(use.section, use.key);
        used.insert(id);
        // What its text is like is the same wherever it is shown in a role.
        if (met.emplace(use.role, id).second)
            JudgeTexts(judged, use);
    }
    JudgeTwice(judged, used);
}

} // namespace lytdlg
