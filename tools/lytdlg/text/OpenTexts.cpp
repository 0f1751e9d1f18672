#include "lytdlg/text/OpenTexts.h"

namespace lytdlg
{

namespace fs = std::filesystem;

namespace
{

const OpenTexts* textsInForce = nullptr;

fs::path AbsoluteName(const fs::path& name)
{
    std::error_code failure;
    const fs::path whole = fs::absolute(name, failure);
    return (failure ? name : whole).lexically_normal();
}

} // namespace

OpenTexts::OpenTexts() : m_before(textsInForce)
{
    textsInForce = this;
}

OpenTexts::~OpenTexts()
{
    textsInForce = m_before;
}

void OpenTexts::Put(const fs::path& name, std::string content)
{
    m_texts[AbsoluteName(name)] = std::move(content);
}

void OpenTexts::Remove(const fs::path& name)
{
    m_texts.erase(AbsoluteName(name));
}

const std::string* OpenTexts::Find(const fs::path& name)
{
    if (textsInForce == nullptr)
        return nullptr;
    const auto found = textsInForce->m_texts.find(AbsoluteName(name));
    return found != textsInForce->m_texts.end() ? &found->second : nullptr;
}

std::vector<fs::path> OpenTexts::NamesIn(const fs::path& folder)
{
    std::vector<fs::path> names;
    if (textsInForce == nullptr)
        return names;
    const fs::path whole = AbsoluteName(folder / "x").parent_path();
    for (const auto& [name, text] : textsInForce->m_texts)
    {
        if (name.parent_path() == whole)
            names.push_back(folder / name.filename());
    }
    return names;
}

} // namespace lytdlg
