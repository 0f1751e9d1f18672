// The modules that this process has loaded.
#pragma once

#include <set>
#include <string>

std::string InLowerCase(std::string text);
// Their full paths, in lower case.
std::set<std::string> LoadedModules();
// The file name at the end of a path.
std::string FileNameOf(const std::string& path);
