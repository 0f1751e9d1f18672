// The descriptions of a folder and the texts that they show. Read at its first use, and then kept: code that judges
// a whole folder asks for each of its descriptions.
#pragma once

#include "lytdlg/judge/TextUses.h"

#include <filesystem>
#include <optional>
#include <set>

namespace lytdlg
{

// One description, with any of its defines and without. A line depends on one define, and a statement on the line of its
// control: together, alone and none are all the choices there are.
struct DescriptionTexts
{
    std::string fileName;
    bool isRead = true;  // false for a file that cannot be read
    bool isWhole = true; // false when a line is refused: what it would show is not known
    std::set<std::string> sections;
    std::vector<ShownText> uses; // in the order of the file, without their controls
    std::set<std::string> opens; // the names of the dialogs that its buttons open, folded
};

DescriptionTexts TextsOf(std::string fileName, const std::string& bytes);

class FolderTexts
{
public:
    explicit FolderTexts(std::string folder) : m_folder(std::move(folder)) {}

    // The names of the descriptions as a description has them, without their extension, in their order. None when there is
    // no folder.
    const std::vector<std::string>& Names() const;
    // In the order of the names.
    const std::vector<DescriptionTexts>& All() const;
    // The name of the first file that has the section; empty when none has.
    std::string FirstOf(const std::string& section) const;
    // Whether one of them opens the dialog of that name.
    bool Open(const std::string& dialog) const;
    // Reads that file anew when it is asked for the next time, be it there or not.
    void Forget(const std::string& fileName);

private:
    const std::vector<std::filesystem::path>& Files() const;
    static DescriptionTexts Read(const std::filesystem::path& file);

    std::string m_folder;
    mutable std::optional<std::vector<std::filesystem::path>> m_files;
    mutable std::optional<std::vector<std::string>> m_names;
    mutable std::vector<DescriptionTexts> m_all;
    mutable bool m_isAllRead = false;
};

} // namespace lytdlg
