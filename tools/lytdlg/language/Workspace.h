// The texts that an editor has open, over the files on the disk, and what was read of them: each text once after a change.
#pragma once

#include "lytdlg/judge/Judge.h"
#include "lytdlg/language/EditorText.h"
#include "lytdlg/text/OpenTexts.h"

namespace lytdlg
{

enum class TextKind
{
    Description,
    Texts, // a language file
    Cases,
    Other
};

TextKind KindOfText(const std::string& path);
// The path as it is compared with others.
std::string PlainPath(const std::string& path);
// The path of the description with a file name beside another one, or what it would be.
std::string PathBeside(const std::string& path, const std::string& name);

class Workspace
{
public:
    // Partner libraries are looked for in the folders; the defines switch lines of descriptions.
    Workspace(std::vector<std::string> partners, std::vector<std::string> defines);

    void Open(const std::string& path, const std::string& utf8);
    // The text must be open.
    void Change(const std::string& path, const TextRange& range, const std::string& utf8);
    void Close(const std::string& path);
    // Files on the disk are others than before.
    void Forget();

    // Null for a text that is not open.
    const EditorText* Find(const std::string& path) const;
    // In the order of their names.
    std::vector<std::string> OpenPaths() const;
    // What a file has, open or not; empty without one. A file of cases is in UTF-8.
    std::string BytesOf(const std::string& path) const;
    // Valid until a text changes.
    const Description& DescriptionAt(const std::string& path) const;
    // As its file has it, of an open description that is the same there in another encoding; else null.
    std::unique_ptr<Description> SavedOtherwise(const std::string& path) const;
    const Surroundings& SurroundingsAt(const std::string& path) const;
    // The folder of the dialogs that a description or a language file belongs to.
    static std::string DialogFolderOf(const std::string& path);

private:
    void Refresh(const std::string& path);

    OpenTexts m_texts;
    std::map<std::string, EditorText> m_open;
    const std::vector<std::string> m_partners;
    const std::vector<std::string> m_defines;
    mutable std::map<std::string, std::unique_ptr<Description>> m_descriptions; // of open texts
    mutable std::unique_ptr<Description> m_lastRead;                            // of any other
    mutable std::map<std::string, Surroundings> m_surroundings;                 // by folder
};

} // namespace lytdlg
