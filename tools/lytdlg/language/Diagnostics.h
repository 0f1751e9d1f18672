// The findings on the open descriptions, kept until they are judged again.
#pragma once

#include "lytdlg/language/Workspace.h"

#include <set>

namespace lytdlg
{

class Diagnostics
{
public:
    // Judges an open text, or one that is included. Gives the files whose findings may be others now: itself, and
    // language files.
    std::set<std::string> Judge(const Workspace& workspace, const std::string& path);
    // From now on a description is judged that is not open, too.
    void Include(const std::string& path) { m_included.insert(path); }
    const std::set<std::string>& Included() const { return m_included; }
    // What was found in a file, as `lytdlg check` reports it. What several descriptions find in a language file is there once.
    std::vector<Finding> Of(const std::string& path) const;

private:
    std::map<std::string, std::vector<Finding>> m_findings; // by the description that was judged
    std::set<std::string> m_included;
};

} // namespace lytdlg
