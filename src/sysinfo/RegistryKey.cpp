#include "sysinfo/RegistryKey.h"

#include <cstring>
#include <string>

RegistryKey::RegistryKey(HKEY root, const char* name)
{
    if (RegOpenKeyA(root, name, &m_key) != ERROR_SUCCESS)
        m_key = nullptr;
}

RegistryKey::RegistryKey(HKEY root, const char* name, REGSAM rights)
{
    if (RegOpenKeyExA(root, name, 0, rights, &m_key) != ERROR_SUCCESS)
        m_key = nullptr;
}

RegistryKey::~RegistryKey()
{
    if (m_key != nullptr)
        RegCloseKey(m_key);
}

LSTATUS RegistryKey::Read(const char* valueName, DWORD& size, CString& text) const
{
    // Data need not end with a NUL, and only its reported size is looked at.
    std::string data(size, '\0');
    const LSTATUS result = RegQueryValueExA(m_key, valueName, nullptr, nullptr,
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
    const LSTATUS result =
        RegQueryValueExA(m_key, valueName, nullptr, &type, static_cast<BYTE*>(static_cast<void*>(&number)), &size);
    return result == ERROR_SUCCESS && type == REG_DWORD ? number : 0;
}
