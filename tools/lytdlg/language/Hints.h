// What an editor shows in the lines of a description besides its text.
#pragma once

#include "lytdlg/language/Workspace.h"

namespace lytdlg
{

// From the name of a dialog to its description.
struct Link
{
    ClytSpan place;
    std::string path;
};
std::vector<Link> LinksOf(const Workspace& workspace, const std::string& path);

// The first language's text after its key.
struct Hint
{
    TextPosition position;
    std::string text;
};
std::vector<Hint> HintsOf(const Workspace& workspace, const std::string& path, const TextRange& range);

// How many of the golden cases of a dialog pass. Carries them out.
std::string VerdictOfCases(const Workspace& workspace, const std::string& path);

} // namespace lytdlg
