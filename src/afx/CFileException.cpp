#include <afx.h>

#include <cerrno>

BOOL CFileException::GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const
{
    const char* what = nullptr;
    switch (m_cause)
    {
    case fileNotFound: what = "The file was not found: "; break;
    case badPath: what = "The path is not valid: "; break;
    case tooManyOpenFiles: what = "Too many files are open: "; break;
    case accessDenied: what = "Access was denied: "; break;
    case sharingViolation: what = "The file is in use: "; break;
    case diskFull: what = "The disk is full: "; break;
    default: what = "The file could not be read or written: "; break;
    }
    return CopyMessage(what + m_strFileName, buffer, size);
}

int CFileException::ErrnoToException(int error)
{
    switch (error)
    {
    case 0: return none;
    case ENOENT: return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case EINVAL: return badPath;
    case EMFILE:
    case ENFILE: return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EISDIR:
    case EROFS: return accessDenied;
    case EBUSY: return sharingViolation;
    case ENOSPC: return diskFull;
    default: return genericException;
    }
}

void AfxThrowFileException(int cause, int osError, const char* fileName)
{
    throw new CFileException(cause, osError, fileName);
}
