// What the workstation itself tells; a source for each kind of system.
#pragma once

#include "lytdlg/doctor/Diagnosis.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

// The program that loads the library: its folder is the first in which the platform looks for partner libraries.
struct Host
{
    std::filesystem::path program; // empty when it is not known
    bool isKnown = false;          // false for a program in its place
};

struct SearchFolder
{
    std::filesystem::path folder;
    const char* name;       // as messages tell it
    bool isCurrent = false; // the current folder, which is another one at another time
    bool isQuoted = false;  // it is in quotes, so that the platform does not find it
};
// A folder as PATH names it.
SearchFolder SearchFolderOf(std::filesystem::path::string_type text, const char* name);

// The word processor that is registered; without one this program takes its place, where that makes sense.
Host HostOfWorkstation();
// Where the platform looks for a library after the folder of the program, in its order. None natively: there the folders of
// the workstation are not known.
std::vector<SearchFolder> SystemSearchFolders();

// Whether another program has the file open and lets nobody read it.
bool IsLocked(const std::filesystem::path& file);
// The folder of `lyt.ini` that the registry leads to when a report is gathered; empty without one.
std::filesystem::path RegisteredConfigurationFolder();
// Whether the system has a font of that name, in the ANSI code page; nothing where that is not known.
std::optional<bool> HasFont(const std::string& name);

struct Deployment;
class Configuration;

// Loads the library and lets it read its texts.
void JudgeLoading(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis);
// The resolution of the screen, and the version of the common controls that the library gets.
void JudgeScreen(const Deployment& deployment, Diagnosis& diagnosis);

} // namespace lytdlg
