#include "framework/windowing/Exceptions.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)
IMPLEMENT_DYNAMIC(COleException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace
{
CMemoryException g_memoryException(FALSE);
CResourceException g_resourceException(FALSE);
CUserException g_userException(FALSE);
} // namespace

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

int CFileException::OsErrorToException(LONG lOsError) noexcept
{
    switch (lOsError) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NO_SYSTEM_RESOURCES:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_TARGET_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_CANNOT_MAKE:
        return directoryFull;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
        return badSeek;
    case ERROR_SHARING_VIOLATION:
    case ERROR_SHARING_BUFFER_EXCEEDED:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCKED:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    case ERROR_NOT_READY:
    case ERROR_CRC:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
        return hardIO;
    default:
        return genericException;
    }
}

void AfxThrowMemoryException()
{
    throw &g_memoryException;
}

void AfxThrowResourceException()
{
    throw &g_resourceException;
}

void AfxThrowUserException()
{
    throw &g_userException;
}

void AfxThrowOleException(HRESULT sc)
{
    throw new COleException(sc);
}

void AfxThrowFileException(int cause, LONG lOsError, LPCWSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AfxThrowArchiveException(int cause, LPCWSTR lpszArchiveName)
{
    throw new CArchiveException(cause, lpszArchiveName);
}
