#include <afx.h>

void CFile::SetFilePath(const char* fileName)
{
    if (fileName == nullptr)
        AfxThrowInvalidArgException();
    m_strFileName = fileName;
}
