#include "environment/ProfileFile.h"

#include "system/NameLength.h"
#include <afxwin.h>

#include <string>

CString lytReadProfileText(const char* section, const char* key, const char* defaultText, int size,
                           const char* fileName)
{
    if (!NameFits(fileName) || !NameFits(section) || !NameFits(key))
        return CString(defaultText).Left(size - 1);
    std::string value(static_cast<size_t>(size), '\0');
    ::GetPrivateProfileStringA(section, key, defaultText, value.data(), static_cast<DWORD>(size), fileName);
    return value.c_str();
}

int lytReadProfileSection(const char* section, char* buffer, int size, const char* fileName)
{
    if (!NameFits(fileName) || !NameFits(section))
    {
        buffer[0] = buffer[1] = '\0';
        return 0;
    }
    return static_cast<int>(::GetPrivateProfileSectionA(section, buffer, static_cast<DWORD>(size), fileName));
}
