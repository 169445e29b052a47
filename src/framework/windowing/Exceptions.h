#pragma once
// Exceptions of the framework. They are thrown and caught by pointer, and the catcher ends
// with Delete(): `catch (CException* e) { e->Delete(); }`. Memory and resource exceptions are
// statics of the module, since there may be no memory to make them from; Delete leaves them.

#include "framework/windowing/Object.h"
#include "framework/windowing/Strings.h"

class CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    explicit CException(BOOL bAutoDelete = TRUE) noexcept : m_bAutoDelete(bAutoDelete) {}
    void Delete();

private:
    BOOL m_bAutoDelete;
};

class CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)
public:
    using CException::CException;
};

class CResourceException : public CException
{
    DECLARE_DYNAMIC(CResourceException)
public:
    using CException::CException;
};

// Ends an operation that has already shown the user why (a failed dialog data exchange).
class CUserException : public CException
{
    DECLARE_DYNAMIC(CUserException)
public:
    using CException::CException;
};

class COleException : public CException
{
    DECLARE_DYNAMIC(COleException)
public:
    explicit COleException(HRESULT sc) noexcept : m_sc(sc) {}
    HRESULT m_sc;
};

class CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none = 0,
        genericException = 1,
        fileNotFound = 2,
        badPath = 3,
        tooManyOpenFiles = 4,
        accessDenied = 5,
        invalidFile = 6,
        removeCurrentDir = 7,
        directoryFull = 8,
        badSeek = 9,
        hardIO = 10,
        sharingViolation = 11,
        lockViolation = 12,
        diskFull = 13,
        endOfFile = 14
    };
    explicit CFileException(int cause = none, LONG lOsError = -1, LPCWSTR lpszFileName = nullptr)
        : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszFileName)
    {
    }
    // The cause that a system error code means.
    [[nodiscard]] static int OsErrorToException(LONG lOsError) noexcept;

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

class CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum {
        none = 0,
        genericException = 1,
        readOnly = 2,
        endOfFile = 3,
        writeOnly = 4,
        badIndex = 5,
        badClass = 6,
        badSchema = 7
    };
    explicit CArchiveException(int cause = none, LPCWSTR lpszArchiveName = nullptr)
        : m_cause(cause), m_strFileName(lpszArchiveName)
    {
    }
    int m_cause;
    CString m_strFileName;
};

[[noreturn]] void AfxThrowMemoryException();
[[noreturn]] void AfxThrowResourceException();
[[noreturn]] void AfxThrowUserException();
[[noreturn]] void AfxThrowOleException(HRESULT sc);
[[noreturn]] void AfxThrowFileException(int cause, LONG lOsError = -1, LPCWSTR lpszFileName = nullptr);
[[noreturn]] void AfxThrowArchiveException(int cause, LPCWSTR lpszArchiveName = nullptr);
