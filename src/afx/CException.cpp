#include <afx.h>

#include <algorithm>
#include <cstring>

BOOL CException::CopyMessage(const char* message, char* buffer, UINT size)
{
    if (buffer == nullptr || size == 0)
        return 0;
    const size_t length = std::min<size_t>(std::strlen(message), size - 1);
    std::memcpy(buffer, message, length);
    buffer[length] = '\0';
    return 1;
}

BOOL CException::GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const
{
    CopyMessage("", buffer, size);
    return 0;
}

int CException::ReportError(UINT type, UINT help)
{
    char message[256] = "";
    if (!GetErrorMessage(message, sizeof message))
        CopyMessage("An unnamed failure stopped the operation.", message, sizeof message);
    return AfxMessageBox(message, type, help);
}

BOOL CInvalidArgException::GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const
{
    return CopyMessage("An argument is missing or out of range.", buffer, size);
}

void AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}
