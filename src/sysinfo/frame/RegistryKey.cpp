#include "sysinfo/frame/RegistryKey.h"

#include <cstring>
#include <string>

RegistryKey::RegistryKey(HKEY root, const char* name)
{
    HKEY key = nullptr;
    if (RegOpenKeyA(root, name, &key) == ERROR_SUCCESS)
        m_key.Reset(key);
}

RegistryKey::RegistryKey(HKEY root, const char* name, REGSAM rights)
{
    HKEY key = nullptr;
    if (RegOpenKeyExA(root, name, 0, rights, &key) == ERROR_SUCCESS)
        m_key.Reset(key);
}

LSTATUS RegistryKey::Read(const char* valueName, DWORD& size, CString& text) const
{
    // Data need not end with a NUL, and only its reported size counts.
    std::string data(size, '\0');
    const LSTATUS result = RegQueryValueExA(m_key.Get(), valueName, nullptr, nullptr,
                                            static_cast<BYTE*>(static_cast<void*>(data.data())), &size);
    if (result == ERROR_SUCCESS)
        text = CString(data.c_str(), static_cast<int>(strnlen(data.c_str(), size)));
    return result;
}

bool RegistryKey::ReadText(const char* valueName, DWORD size, CString& text) const
{
    return Read(valueName, size, text) == ERROR_SUCCESS;
}

bool RegistryKey::ReadWholeText(const char* valueName, DWORD size, CString& text) const
{
    LSTATUS result = Read(valueName, size, text);
    if (result == ERROR_MORE_DATA)
        result = Read(valueName, size, text);
    return result == ERROR_SUCCESS;
}

DWORD RegistryKey::ReadNumber(const char* valueName) const
{
    DWORD number = 0;
    DWORD type = REG_NONE;
    DWORD size = sizeof number;
    const LSTATUS result = RegQueryValueExA(m_key.Get(), valueName, nullptr, &type,
                                            static_cast<BYTE*>(static_cast<void*>(&number)), &size);
    return result == ERROR_SUCCESS && type == REG_DWORD ? number : 0;
}

bool RegistryKey::ReadSubkey(const char* subkey, LONG size, CString& text) const
{
    std::string data(static_cast<size_t>(size), '\0');
    if (RegQueryValueA(m_key.Get(), subkey, data.data(), &size) != ERROR_SUCCESS)
        return false;
    text = data.c_str();
    return true;
}

LSTATUS RegistryKey::EnumKey(DWORD index, DWORD size, CString& name) const
{
    std::string text(size, '\0');
    const LSTATUS result = RegEnumKeyA(m_key.Get(), index, text.data(), size);
    if (result == ERROR_SUCCESS)
        name = text.c_str();
    return result;
}

LSTATUS RegistryKey::EnumValue(DWORD index, DWORD size, RegistryValue& value) const
{
    std::string name(size, '\0');
    DWORD nameSize = size;
    DWORD type = REG_NONE;
    value.data.assign(size, '\0');
    const LSTATUS result = RegEnumValueA(m_key.Get(), index, name.data(), &nameSize, nullptr, &type,
                                         static_cast<BYTE*>(static_cast<void*>(value.data.data())), &size);
    value.name = name.c_str();
    value.type = type;
    value.data.resize(result == ERROR_SUCCESS ? size : 0);
    return result;
}

std::vector<CString> RegistryKey::SubkeyNames(DWORD size) const
{
    std::vector<CString> names;
    CString name;
    for (DWORD index = 0; EnumKey(index, size, name) == ERROR_SUCCESS; ++index)
        names.push_back(name);
    return names;
}

DWORD RegistryKey::CountValues() const
{
    DWORD count = 0;
    RegQueryInfoKeyA(m_key.Get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count, nullptr, nullptr,
                     nullptr, nullptr);
    return count;
}
