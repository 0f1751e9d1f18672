#include <afx.h>

#include "system/NameLength.h"
#include "system/StdioStream.h"

#include <cerrno>

namespace
{

std::FILE* OpenStream(const char* fileName, UINT flags)
{
    StreamUse use = StreamUse::Read;
    if ((flags & CFile::modeWrite) != 0)
        use = (flags & CFile::modeNoTruncate) != 0 ? StreamUse::Append : StreamUse::Write;
    return OpenTextStream(fileName, use,
                          (flags & CFile::shareDenyWrite) != 0 ? StreamSharing::DenyWrite : StreamSharing::All);
}

} // namespace

BOOL CStdioFile::Open(const char* fileName, UINT flags, CFileException* error)
{
    SetFilePath(fileName);
    errno = 0;
    if (NameFits(fileName))
        m_pStream.reset(OpenStream(fileName, flags));
    else
        errno = ENOENT;
    if (m_pStream != nullptr)
        return 1;
    if (error != nullptr)
    {
        error->m_cause = CFileException::ErrnoToException(errno);
        error->m_strFileName = fileName;
    }
    return 0;
}

void CStdioFile::Close()
{
    std::FILE* stream = m_pStream.release();
    if (stream != nullptr && std::fclose(stream) != 0)
        Fail();
}

char* CStdioFile::ReadString(char* buffer, UINT count)
{
    if (ReadTextLine(Stream(), buffer, count))
        return buffer;
    if (std::ferror(Stream()) != 0)
        Fail();
    return nullptr;
}

void CStdioFile::WriteString(const char* text)
{
    if (!WriteText(Stream(), text))
        Fail();
}

void CStdioFile::SeekToEnd()
{
    if (std::fseek(Stream(), 0, SEEK_END) != 0)
        Fail();
}

std::FILE* CStdioFile::Stream() const
{
    if (m_pStream == nullptr)
        AfxThrowInvalidArgException();
    return m_pStream.get();
}

void CStdioFile::Fail() const
{
    AfxThrowFileException(CFileException::ErrnoToException(errno), 0, m_strFileName);
}
