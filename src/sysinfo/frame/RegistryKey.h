// An open key of the registry, for reading; closes itself.
#pragma once

#include "sysinfo/frame/FactHandles.h"
#include "sysinfo/frame/RegistryValue.h"

#include <vector>
#include <windows.h>

class RegistryKey
{
public:
    // Opens the key with all rights that the user has on it.
    RegistryKey(HKEY root, const char* name);
    RegistryKey(HKEY root, const char* name, REGSAM rights);

    bool IsOpen() const { return m_key.IsOpen(); }
    HKEY Get() const { return m_key.Get(); }

    // The value's data up to its first NUL; `text` stays as it is unless the read works. A null name is the default
    // value. Data of more than `size` bytes counts as unreadable.
    bool ReadText(const char* valueName, DWORD size, CString& text) const;
    // The same, but data of more than `size` bytes is read once more with the size that it has.
    bool ReadWholeText(const char* valueName, DWORD size, CString& text) const;
    // A DWORD value, 0 when it cannot be read.
    DWORD ReadNumber(const char* valueName) const;
    // The default value of a subkey, or of the key itself for null.
    bool ReadSubkey(const char* subkey, LONG size, CString& text) const;

    // The subkey or value at an index; the platform's result. What does not fit into buffers of `size` bytes fails.
    LSTATUS EnumKey(DWORD index, DWORD size, CString& name) const;
    LSTATUS EnumValue(DWORD index, DWORD size, RegistryValue& value) const;
    // The names of the subkeys up to the first that cannot be read.
    std::vector<CString> SubkeyNames(DWORD size) const;
    // 0 when it cannot be read.
    DWORD CountValues() const;

private:
    // The platform's result; `size` receives the size that the data has.
    LSTATUS Read(const char* valueName, DWORD& size, CString& text) const;

    ClytKeyHandle m_key;
};
