#include "lytdlg/language/Workspace.h"

#include "commandline/Text.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

namespace lytdlg
{

TextKind KindOfText(const std::string& path)
{
    const std::string extension = ExtensionOf(path);
    return extension == ".dlg"    ? TextKind::Description
           : extension == ".nls"  ? TextKind::Texts
           : extension == ".case" ? TextKind::Cases
                                  : TextKind::Other;
}

std::string PlainPath(const std::string& path)
{
    return PathOf(path).lexically_normal().generic_string();
}

std::string PathBeside(const std::string& path, const std::string& name)
{
    const std::filesystem::path folder = PathOf(path).parent_path();
    const std::filesystem::path file = FileIn(folder, name);
    return PlainPath((file.empty() ? folder / PathOf(name) : file).string());
}

Workspace::Workspace(std::vector<std::string> partners, std::vector<std::string> defines)
    : m_partners(std::move(partners)), m_defines(std::move(defines))
{
}

void Workspace::Open(const std::string& path, const std::string& utf8)
{
    m_open.insert_or_assign(path, EditorText(utf8));
    Refresh(path);
}

void Workspace::Change(const std::string& path, const TextRange& range, const std::string& utf8)
{
    m_open.at(path).Replace(range, utf8);
    Refresh(path);
}

void Workspace::Close(const std::string& path)
{
    m_open.erase(path);
    m_texts.Remove(PathOf(path));
    m_descriptions.erase(path);
    Forget();
}

void Workspace::Forget()
{
    m_surroundings.clear();
    m_lastRead.reset();
}

void Workspace::Refresh(const std::string& path)
{
    const EditorText& text = m_open.at(path);
    m_texts.Put(PathOf(path), KindOfText(path) == TextKind::Cases ? text.Utf8() : text.Bytes());
    m_descriptions.erase(path);
    m_lastRead.reset();
    const auto known = m_surroundings.find(DialogFolderOf(path));
    if (known == m_surroundings.end())
        return;
    if (KindOfText(path) == TextKind::Texts)
        known->second.texts = LanguageFiles(PathOf(known->first));
    else
        known->second.descriptions.Forget(PathOf(path).filename().string());
}

const EditorText* Workspace::Find(const std::string& path) const
{
    const auto found = m_open.find(path);
    return found != m_open.end() ? &found->second : nullptr;
}

std::vector<std::string> Workspace::OpenPaths() const
{
    std::vector<std::string> paths;
    for (const auto& [path, text] : m_open)
        paths.push_back(path);
    return paths;
}

std::string Workspace::BytesOf(const std::string& path) const
{
    return ReadWholeFile(PathOf(path)).value_or("");
}

const Description& Workspace::DescriptionAt(const std::string& path) const
{
    std::unique_ptr<Description>& kept = m_open.contains(path) ? m_descriptions[path] : m_lastRead;
    if (!kept || kept->path != path)
        kept = std::make_unique<Description>(path, BytesOf(path), m_defines);
    return *kept;
}

std::unique_ptr<Description> Workspace::SavedOtherwise(const std::string& path) const
{
    const EditorText* text = Find(path);
    const std::optional<std::string> saved = text != nullptr ? ReadSavedFile(PathOf(path)) : std::nullopt;
    if (!saved || *saved == text->Bytes() ||
        commandline::AsUtf8(commandline::FromMarkedUnicode(*saved)) != text->Utf8())
        return nullptr;
    return std::make_unique<Description>(path, *saved, m_defines);
}

const Surroundings& Workspace::SurroundingsAt(const std::string& path) const
{
    const std::string folder = DialogFolderOf(path);
    auto known = m_surroundings.find(folder);
    if (known == m_surroundings.end())
        known = m_surroundings.emplace(folder, SurroundingsOf(folder, m_partners)).first;
    return known->second;
}

std::string Workspace::DialogFolderOf(const std::string& path)
{
    const std::filesystem::path folder = PathOf(path).parent_path();
    return (KindOfText(path) == TextKind::Texts ? folder.parent_path() : folder).string();
}

} // namespace lytdlg
