#include "support/RegistryFacts.h"

#include <gtest/gtest.h>

namespace
{

bool HasKey(HKEY root, const std::string& key)
{
    HKEY opened = nullptr;
    if (RegOpenKeyExA(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

// The outermost part of a key that is not there yet; empty when all of it is there.
std::string FirstMissing(HKEY root, const std::string& key)
{
    for (size_t end = key.find('\\');; end = key.find('\\', end + 1))
    {
        const std::string part = key.substr(0, end);
        if (!HasKey(root, part))
            return part;
        if (end == std::string::npos)
            return "";
    }
}

LSTATUS SetValue(HKEY root, const std::string& key, const std::string& name, DWORD type, const std::string& data)
{
    HKEY opened = nullptr;
    LSTATUS result = RegOpenKeyExA(root, key.c_str(), 0, KEY_SET_VALUE, &opened);
    if (result != ERROR_SUCCESS)
        return result;
    const void* bytes = data.data();
    result =
        RegSetValueExA(opened, name.c_str(), 0, type, static_cast<const BYTE*>(bytes), static_cast<DWORD>(data.size()));
    RegCloseKey(opened);
    return result;
}

void DeleteValue(HKEY root, const std::string& key, const std::string& name)
{
    RegDeleteKeyValueA(root, key.c_str(), name.c_str());
}

} // namespace

RegistryFacts::~RegistryFacts()
{
    for (auto undo = m_undo.rbegin(); undo != m_undo.rend(); ++undo)
        (*undo)();
}

void RegistryFacts::AddKey(HKEY root, const std::string& key)
{
    const std::string missing = FirstMissing(root, key);
    if (missing.empty())
        return;
    HKEY made = nullptr;
    ASSERT_EQ(RegCreateKeyA(root, key.c_str(), &made), ERROR_SUCCESS) << key;
    RegCloseKey(made);
    m_undo.emplace_back([root, missing] { RegDeleteTreeA(root, missing.c_str()); });
}

void RegistryFacts::Set(HKEY root, const std::string& key, const std::string& name, DWORD type, const std::string& data)
{
    AddKey(root, key);
    KeepValue(root, key, name);
    ASSERT_EQ(SetValue(root, key, name, type, data), ERROR_SUCCESS) << key << " " << name;
}

void RegistryFacts::SetText(HKEY root, const std::string& key, const std::string& name, const std::string& text)
{
    Set(root, key, name, REG_SZ, text + '\0');
}

void RegistryFacts::SetNumber(HKEY root, const std::string& key, const std::string& name, DWORD number)
{
    const void* bytes = &number;
    Set(root, key, name, REG_DWORD, std::string(static_cast<const char*>(bytes), sizeof number));
}

void RegistryFacts::Remove(HKEY root, const std::string& key, const std::string& name)
{
    KeepValue(root, key, name);
    DeleteValue(root, key, name);
}

void RegistryFacts::KeepValue(HKEY root, const std::string& key, const std::string& name)
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    const LSTATUS found =
        RegGetValueA(root, key.c_str(), name.c_str(), RRF_RT_ANY | RRF_NOEXPAND, &type, nullptr, &size);
    if (found != ERROR_SUCCESS)
    {
        m_undo.emplace_back([=] { DeleteValue(root, key, name); });
        return;
    }
    std::string data(size, '\0');
    RegGetValueA(root, key.c_str(), name.c_str(), RRF_RT_ANY | RRF_NOEXPAND, &type, data.data(), &size);
    data.resize(size);
    m_undo.emplace_back([=] { SetValue(root, key, name, type, data); });
}
