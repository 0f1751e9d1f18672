// The modules that this process has loaded.
#pragma once

#include <set>
#include <string>

std::string InLowerCase(std::string text);
// Their full paths, in lower case.
std::set<std::string> LoadedModules();
// The bytes of a library's file, marked as made for another kind of processor.
std::string LibraryOfAnotherMachine(const std::string& file);
// The file name at the end of a path.
std::string FileNameOf(const std::string& path);
