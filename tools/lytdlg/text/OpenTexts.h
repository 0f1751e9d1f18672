// Texts that an editor holds and has perhaps not saved. While they are there, everything that reads a whole file or lists a folder
// sees them in place of what is on the disk.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace lytdlg
{

class OpenTexts
{
public:
    // One object at a time is in force: the last one made.
    OpenTexts();
    OpenTexts(const OpenTexts&) = delete;
    OpenTexts& operator=(const OpenTexts&) = delete;
    ~OpenTexts();

    void Put(const std::filesystem::path& name, std::string content);
    void Remove(const std::filesystem::path& name);

    // The text in force for a file; null without one.
    static const std::string* Find(const std::filesystem::path& name);
    // The texts in force of a folder, by names that begin as the folder's does.
    static std::vector<std::filesystem::path> NamesIn(const std::filesystem::path& folder);

private:
    std::map<std::filesystem::path, std::string> m_texts; // by absolute names
    const OpenTexts* m_before;
};

} // namespace lytdlg
