#include "lytdlg/doctor/Configuration.h"

#include "base/Words.h"

namespace lytdlg
{

std::vector<const LanguageKey*> Configuration::KeysOf(const std::string& section) const
{
    std::vector<const LanguageKey*> keys;
    for (const LanguageKey& key : m_file.Keys())
    {
        if (key.isReached && IsSameName(key.section, section))
            keys.push_back(&key);
    }
    return keys;
}

int Configuration::LogLevel() const
{
    return NumberOf("LogLevel", "level");
}

int Configuration::NumberOf(const std::string& section, const std::string& key) const
{
    return lytNumberOf(ValueOf(section, key).c_str());
}

std::string Configuration::ValueOf(const std::string& section, const std::string& key) const
{
    const LanguageKey* const found = Find(section, key);
    return found != nullptr ? found->text : "";
}

ClytSpan PlaceOfValue(const LanguageKey& key)
{
    const size_t sign = key.line.find('=');
    const size_t value = key.text.empty() ? std::string::npos : key.line.find(key.text, sign + 1);
    const size_t column = value != std::string::npos ? value : sign + 1;
    return {key.place.line, static_cast<int>(column), static_cast<int>(key.text.size())};
}

} // namespace lytdlg
