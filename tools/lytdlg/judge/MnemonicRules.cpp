#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/TextUses.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

struct LetteredCaption
{
    const ShownText* use = nullptr;
    char letter = '\0';
};

bool IsHidden(const Description& description, const ClytControlStatement& control)
{
    return !control.name.IsEmpty() && HasOption(description, control.name.GetString(), ClytOption::Hidden);
}

// The captions that lead to a control, with their letters.
std::vector<LetteredCaption> CaptionsOf(const Description& description, const LanguageFile& file,
                                        const std::vector<ShownText>& uses)
{
    std::vector<LetteredCaption> captions;
    for (const ShownText& use : uses)
    {
        const LanguageKey* key = file.Find(use.section, use.key);
        if (IsCaptionOrButton(use.role) && key != nullptr && !key->text.empty() && !IsHidden(description, *use.control))
            captions.push_back({&use, MnemonicOf(key->text)});
    }
    return captions;
}

// The captions before one that underline its letter. Two of different controls are enough to find one that is not its
// own: each control may have a second caption.
class LetterUsers
{
public:
    void Add(const LetteredCaption& caption)
    {
        const bool isNew = std::ranges::none_of(m_captions, [&](const LetteredCaption* other)
                                                { return other->use->control == caption.use->control; });
        if (isNew && m_captions.size() < 2)
            m_captions.push_back(&caption);
    }
    const LetteredCaption* Other(const LetteredCaption& caption) const
    {
        const auto other = std::ranges::find_if(m_captions, [&](const LetteredCaption* each)
                                                { return each->use->control != caption.use->control; });
        return other != m_captions.end() ? *other : nullptr;
    }

private:
    std::vector<const LetteredCaption*> m_captions;
};

// Two controls that may both be hidden are taken for ones that are never seen together.
void JudgeTwice(const Case& judged, const LanguageFile& file, const std::vector<LetteredCaption>& captions)
{
    std::map<char, LetterUsers> all;
    std::map<char, LetterUsers> alwaysSeen;
    for (const LetteredCaption& caption : captions)
    {
        if (caption.letter == '\0')
            continue;
        const bool mayBeHidden = MayBeHidden(judged.description, *caption.use->control);
        const LetteredCaption* before = (mayBeHidden ? alwaysSeen : all)[caption.letter].Other(caption);
        all[caption.letter].Add(caption);
        if (!mayBeHidden)
            alwaysSeen[caption.letter].Add(caption);
        if (before == nullptr)
            continue;
        judged.findings.Add("mnemonic-twice", caption.use->place,
                            "in " + file.Language() + ".nls " + InQuotes(caption.use->key) + " underlines the letter " +
                                std::string(1, caption.letter) + " as " + InQuotes(before->use->key) + " in line " +
                                std::to_string(before->use->place.line) + " does",
                            "choose another letter in the language file");
    }
}

// Buttons, and texts whose next control can be reached. The two buttons that every dialog has are reached by Return and
// Escape.
bool LeadsSomewhere(const Description& description, const LetteredCaption& caption)
{
    const ClytControlStatement* control = caption.use->control;
    const Kind kind = KindOf(*control);
    if (kind != Kind::Text)
        return caption.use->role == TextRole::Caption && kind != Kind::Frame;
    const ClytControlStatement* next = control + 1; // the statements are in one vector
    if (control == &description.controls.back())
        return false;
    const bool isReached = lytTypeOf(KindOf(*next)).isFilled;
    const std::string name = next->name.GetString();
    return isReached && !HasOption(description, name, ClytOption::Hidden) &&
           !HasOption(description, name, ClytOption::DisplayOnly);
}

void JudgeNone(const Case& judged, const LanguageFile& file, std::vector<LetteredCaption> captions)
{
    std::erase_if(captions,
                  [&](const LetteredCaption& caption) { return !LeadsSomewhere(judged.description, caption); });
    const auto lacking = static_cast<size_t>(std::ranges::count(captions, '\0', &LetteredCaption::letter));
    if (lacking * 2 >= captions.size())
        return;
    for (const LetteredCaption& caption : captions)
    {
        if (caption.letter == '\0')
            judged.findings.Add("mnemonic-none", caption.use->place,
                                "in " + file.Language() + ".nls " + InQuotes(caption.use->key) +
                                    " underlines no letter",
                                "write an & before a letter that the dialog does not have yet");
    }
}

} // namespace

void ApplyMnemonicRules(const Case& judged)
{
    const std::vector<ShownText> uses = TextUsesOf(judged.description);
    for (const LanguageFile& file : judged.surroundings.texts.Files())
    {
        const std::vector<LetteredCaption> captions = CaptionsOf(judged.description, file, uses);
        JudgeTwice(judged, file, captions);
        JudgeNone(judged, file, captions);
    }
}

} // namespace lytdlg
