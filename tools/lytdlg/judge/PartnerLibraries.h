// The libraries that descriptions call, in the folders that may hold them. Each is read and tried once.
#pragma once

#include "lytdlg/judge/LoadTrial.h"

#include <map>

namespace lytdlg
{

struct Partner
{
    ExportTable table;
    std::optional<LoadFailure> failure; // of a library of the right form
};

class PartnerLibraries
{
public:
    explicit PartnerLibraries(const std::vector<std::string>& folders);

    // Whether there are folders to look in.
    bool AreKnown() const { return !m_surroundings.folders.empty(); }
    // Of the libraries in the folders, as descriptions have them.
    std::vector<std::string> Names() const;
    // By the name of its file; null when no folder holds it.
    const Partner* Find(const std::string& fileName);

private:
    Partner Read(const std::filesystem::path& file) const;

    LoadSurroundings m_surroundings;
    std::map<std::string, Partner> m_partners;
};

} // namespace lytdlg
