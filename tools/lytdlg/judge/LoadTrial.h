// Whether the platform can load a library: tried in a separate process, where no entry point does harm.
#pragma once

#include "lytdlg/judge/ExportTable.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// What surrounds a library in the process that loads it.
struct LoadSurroundings
{
    std::vector<std::filesystem::path> folders; // that are searched for what it needs, besides the platform's own
    std::filesystem::path loaded;               // a library that is there already; empty for none
};

struct LoadFailure
{
    std::string reason;
    std::string hint; // what to do
};

// Nothing for a library that can be loaded. Elsewhere than on Windows only those are missed that come with a compiler.
std::optional<LoadFailure> TryToLoad(const std::filesystem::path& library, const ExportTable& table,
                                     const LoadSurroundings& surroundings);

// The error of the platform, 0 when it loads the library; nothing where it cannot be tried.
std::optional<unsigned long> LoadErrorOf(const std::filesystem::path& library, const LoadSurroundings& surroundings);
std::string ReasonOfLoadError(unsigned long error);
// The folders with the libraries of the platform itself; none where they are not known.
std::vector<std::filesystem::path> PlatformFolders();

// The first word for the separate process, and what that does with all its words; returns its exit code.
inline constexpr const char* loadTrialWord = "--try-to-load";
int CarryOutLoadTrial(const std::vector<std::string>& words);

} // namespace lytdlg
