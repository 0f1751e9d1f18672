// A folder of files for one test, gone with it.
#pragma once

#include <filesystem>
#include <string>

class TestFolder
{
public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    // The full path, without a `\` at its end.
    const std::string& Path() const { return m_path; }
    // The full path of a name in it; folders on the way are made.
    std::string File(const std::string& name) const;
    // Writes a file, byte for byte, and returns its full path.
    std::string Write(const std::string& name, const std::string& content) const;
    std::string Read(const std::string& name) const;
    bool Has(const std::string& name) const;

private:
    std::filesystem::path PathOf(std::string name) const;

    std::string m_path;
};
