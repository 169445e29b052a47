#pragma once
// A binary file on the system's file functions. It owns its handle; the destructor closes it.
// Open reports a failure by its result, all other operations by a CFileException.

#include "framework/windowing/Object.h"
#include "framework/windowing/Strings.h"

class CFileException;

class CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeCreate = 0x1000
    };
    enum SeekPosition : UINT { begin = 0, current = 1, end = 2 };

    CFile() noexcept = default;
    CFile(LPCWSTR lpszFileName, UINT nOpenFlags); // throws a CFileException
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    ~CFile() override;

    // Without a sharing flag the file is shared with nobody. On failure `pError`, where one is
    // given, takes the cause.
    virtual BOOL Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    // The number of bytes read; less than asked for only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    [[nodiscard]] virtual ULONGLONG GetPosition() const;
    [[nodiscard]] virtual ULONGLONG GetLength() const;
    virtual void Flush();
    virtual void Close();
    // Closes without a word about errors.
    virtual void Abort() noexcept;

    [[nodiscard]] const CString& GetFilePath() const noexcept { return m_strFileName; }

private:
    HANDLE m_hFile = INVALID_HANDLE_VALUE;
    CString m_strFileName;
};
