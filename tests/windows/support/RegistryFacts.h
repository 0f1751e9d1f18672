// Keys and values that a test lays into the registry of its prefix; gone, or back as they were, when the object dies.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

class RegistryFacts
{
public:
    RegistryFacts() = default;
    RegistryFacts(const RegistryFacts&) = delete;
    RegistryFacts& operator=(const RegistryFacts&) = delete;
    ~RegistryFacts();

    // Makes a key, and those on the way to it.
    void AddKey(HKEY root, const std::string& key);
    // Makes a value, with its key; an empty name is the default value.
    void Set(HKEY root, const std::string& key, const std::string& name, DWORD type, const std::string& data);
    void SetText(HKEY root, const std::string& key, const std::string& name, const std::string& text);
    void SetNumber(HKEY root, const std::string& key, const std::string& name, DWORD number);
    // Takes a value away for the time of the test.
    void Remove(HKEY root, const std::string& key, const std::string& name);

private:
    void KeepValue(HKEY root, const std::string& key, const std::string& name);

    std::vector<std::function<void()>> m_undo; // run backwards
};
