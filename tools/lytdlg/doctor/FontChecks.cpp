#include "lytdlg/doctor/Checks.h"

#include "commandline/Text.h"
#include "lytdlg/judge/Names.h"

namespace lytdlg
{

void JudgeFonts(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis)
{
    for (const LanguageKey* key : configuration.KeysOf("FONTS"))
    {
        // A blank after a comma belongs to the name.
        for (size_t start = 0, end = 0; start < key->text.size(); start = end + 1)
        {
            end = std::min(key->text.find(',', start), key->text.size());
            const std::string font = key->text.substr(start, end - start);
            if (HasFont(font).value_or(true))
                continue;
            const size_t column = static_cast<size_t>(PlaceOfValue(*key).column) + start;
            diagnosis.Add({Verdict::Note,
                           "fonts",
                           deployment.configuration.chosen.string(),
                           {key->place.line, static_cast<int>(column), static_cast<int>(font.size())},
                           "the font " + InQuotes(commandline::ToUtf8(font)) +
                               " is not installed, so that documents look different here",
                           font.starts_with(' ') ? "take the blank after the comma away"
                                                 : "install it, or correct the section [FONTS]"});
        }
    }
}

} // namespace lytdlg
