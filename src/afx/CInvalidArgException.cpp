#include <afx.h>

BOOL CInvalidArgException::GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const
{
    return CopyMessage("An argument is missing or out of range.", buffer, size);
}

void AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}
