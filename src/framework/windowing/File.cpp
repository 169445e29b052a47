#include "framework/windowing/File.h"

#include <utility>

#include "framework/windowing/Exceptions.h"

IMPLEMENT_DYNAMIC(CFile, CObject)

namespace
{

[[noreturn]] void ThrowOsError(const CString& path, DWORD error)
{
    AfxThrowFileException(CFileException::OsErrorToException(static_cast<LONG>(error)),
                          static_cast<LONG>(error), path);
}

DWORD ShareOf(UINT flags) noexcept
{
    switch (flags & 0x70) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD AccessOf(UINT flags) noexcept
{
    switch (flags & 0x3) {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

} // namespace

CFile::CFile(LPCWSTR lpszFileName, UINT nOpenFlags)
{
    CFileException failure;
    if (!CFile::Open(lpszFileName, nOpenFlags, &failure))
        AfxThrowFileException(failure.m_cause, failure.m_lOsError, lpszFileName);
}

CFile::~CFile()
{
    CFile::Abort();
}

BOOL CFile::Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    CFile::Abort();
    m_strFileName = lpszFileName;
    const DWORD disposition = (nOpenFlags & modeCreate) ? CREATE_ALWAYS : OPEN_EXISTING;
    m_hFile = ::CreateFileW(m_strFileName, AccessOf(nOpenFlags), ShareOf(nOpenFlags), nullptr,
                            disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (m_hFile != INVALID_HANDLE_VALUE)
        return TRUE;
    if (pError) {
        pError->m_lOsError = static_cast<LONG>(::GetLastError());
        pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
        pError->m_strFileName = m_strFileName;
    }
    return FALSE;
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    DWORD read = 0;
    if (nCount != 0 && !::ReadFile(m_hFile, lpBuf, nCount, &read, nullptr))
        ThrowOsError(m_strFileName, ::GetLastError());
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    DWORD written = 0;
    if (!::WriteFile(m_hFile, lpBuf, nCount, &written, nullptr))
        ThrowOsError(m_strFileName, ::GetLastError());
    if (written != nCount) // the system reports a full disk by a short count
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = lOff;
    if (!::SetFilePointerEx(m_hFile, distance, &position, nFrom))
        ThrowOsError(m_strFileName, ::GetLastError());
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER position;
    if (!::SetFilePointerEx(m_hFile, {}, &position, FILE_CURRENT))
        ThrowOsError(m_strFileName, ::GetLastError());
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER length;
    if (!::GetFileSizeEx(m_hFile, &length))
        ThrowOsError(m_strFileName, ::GetLastError());
    return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::Flush()
{
    if (m_hFile != INVALID_HANDLE_VALUE && !::FlushFileBuffers(m_hFile))
        ThrowOsError(m_strFileName, ::GetLastError());
}

void CFile::Close()
{
    const HANDLE handle = std::exchange(m_hFile, INVALID_HANDLE_VALUE);
    if (handle != INVALID_HANDLE_VALUE && !::CloseHandle(handle))
        ThrowOsError(m_strFileName, ::GetLastError());
}

void CFile::Abort() noexcept
{
    const HANDLE handle = std::exchange(m_hFile, INVALID_HANDLE_VALUE);
    if (handle != INVALID_HANDLE_VALUE)
        ::CloseHandle(handle);
}
