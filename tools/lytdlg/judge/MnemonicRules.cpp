#include "lytdlg/judge/MnemonicRules.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/TextUses.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{
namespace mnemonic_rules
{

constexpr Rule twice = {
    "mnemonic-twice",
    Level::Warning,
    "Two captions of a dialog underline the same letter.",
    "Alt with the letter then goes from one to the other, and a button needs a second press. Choose "
    "another letter in\nthe language file.",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Note\", .More",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

constexpr Rule none = {
    "mnemonic-none",
    Level::Note,
    "A caption underlines no letter, while most of the others do.",
    "An & before a letter of the caption underlines it, and Alt with that letter goes to the button, "
    "or to the control\nafter a Text.",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Plain\", .More",
    "$LAYOUT Example\n    CheckBox 520, 12, 112, 12, \"Remove\", .More"};

struct Caption
{
    const ShownText* use = nullptr;
    char letter = '\0';
};

std::string NameOf(const ClytControlStatement& control)
{
    return control.name.GetString();
}

bool IsHidden(const Description& description, const ClytControlStatement& control)
{
    return !control.name.IsEmpty() && HasOption(description, NameOf(control), ClytOption::Hidden);
}

// The captions that lead to a control, with their letters.
std::vector<Caption> CaptionsOf(const Description& description, const LanguageFile& file,
                                const std::vector<ShownText>& uses)
{
    std::vector<Caption> captions;
    for (const ShownText& use : uses)
    {
        const bool isCaption =
            use.role == TextRole::Caption || use.role == TextRole::Alternate || use.role == TextRole::Button;
        const LanguageKey* key = file.Find(use.section, use.key);
        if (isCaption && key != nullptr && !key->text.empty() && !IsHidden(description, *use.control))
            captions.push_back({&use, MnemonicOf(key->text)});
    }
    return captions;
}

// The captions before one that underline its letter. Two of different controls are enough to find one that is not its
// own: each control may have a second caption.
class LetterUsers
{
public:
    void Add(const Caption& caption)
    {
        const bool isNew = std::ranges::none_of(m_captions, [&](const Caption* other)
                                                { return other->use->control == caption.use->control; });
        if (isNew && m_captions.size() < 2)
            m_captions.push_back(&caption);
    }
    const Caption* Other(const Caption& caption) const
    {
        const auto other = std::ranges::find_if(m_captions, [&](const Caption* each)
                                                { return each->use->control != caption.use->control; });
        return other != m_captions.end() ? *other : nullptr;
    }

private:
    std::vector<const Caption*> m_captions;
};

// Two controls that may both be hidden are taken for ones that are never seen together.
void JudgeTwice(const Case& judged, const LanguageFile& file, const std::vector<Caption>& captions)
{
    std::map<char, LetterUsers> all;
    std::map<char, LetterUsers> alwaysSeen;
    for (const Caption& caption : captions)
    {
        if (caption.letter == '\0')
            continue;
        const bool mayBeHidden = MayBeHidden(judged.description, *caption.use->control);
        const Caption* before = (mayBeHidden ? alwaysSeen : all)[caption.letter].Other(caption);
        all[caption.letter].Add(caption);
        if (!mayBeHidden)
            alwaysSeen[caption.letter].Add(caption);
        if (before == nullptr)
            continue;
        judged.findings.Add(twice, caption.use->place,
                            "in " + file.Language() + ".nls " + InQuotes(caption.use->key) + " underlines the letter " +
                                std::string(1, caption.letter) + " as " + InQuotes(before->use->key) + " in line " +
                                std::to_string(before->use->place.line) + " does",
                            "choose another letter in the language file");
    }
}

// Buttons, and texts whose next control can be reached. The two buttons that every dialog has are reached by Return and
// Escape.
bool LeadsSomewhere(const Description& description, const Caption& caption)
{
    const ClytControlStatement* control = caption.use->control;
    const Kind kind = KindOf(*control);
    if (kind != Kind::Text)
        return caption.use->role == TextRole::Caption && kind != Kind::Frame;
    const ClytControlStatement* next = control + 1; // the statements stand in one vector
    if (control == &description.controls.back())
        return false;
    const bool isReached = KindOf(*next) == Kind::Field || HasItems(KindOf(*next));
    const std::string name = NameOf(*next);
    return isReached && !HasOption(description, name, ClytOption::Hidden) &&
           !HasOption(description, name, ClytOption::DisplayOnly);
}

void JudgeNone(const Case& judged, const LanguageFile& file, std::vector<Caption> captions)
{
    std::erase_if(captions, [&](const Caption& caption) { return !LeadsSomewhere(judged.description, caption); });
    const auto lacking = static_cast<size_t>(std::ranges::count(captions, '\0', &Caption::letter));
    if (lacking * 2 >= captions.size())
        return;
    for (const Caption& caption : captions)
    {
        if (caption.letter == '\0')
            judged.findings.Add(none, caption.use->place,
                                "in " + file.Language() + ".nls " + InQuotes(caption.use->key) +
                                    " underlines no letter",
                                "write an & before a letter that the dialog does not have yet");
    }
}

} // namespace mnemonic_rules
} // namespace

Family MnemonicRules()
{
    using namespace mnemonic_rules;
    return {{&twice, &none},
            [](const Case& judged)
            {
                const std::vector<ShownText> uses = TextUsesOf(judged.description);
                for (const LanguageFile& file : judged.surroundings.texts.Files())
                {
                    const std::vector<Caption> captions = CaptionsOf(judged.description, file, uses);
                    JudgeTwice(judged, file, captions);
                    JudgeNone(judged, file, captions);
                }
            }};
}

} // namespace lytdlg
