// A file for as long as it is needed, in the folder for such files.
#pragma once

#include <string>

namespace lytdlg
{

class ScratchFile
{
public:
    // The name ends with the extension, and is one of this process alone.
    explicit ScratchFile(const std::string& extension);
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile();

    const std::string& Name() const { return m_name; }
    std::string Read() const;

private:
    std::string m_name;
};

} // namespace lytdlg
