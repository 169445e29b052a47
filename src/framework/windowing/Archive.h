#pragma once
// A binary stream over a file, little-endian without padding, for storing or for loading.
// The encoding of lengths and tags is that of ArchiveEncoding.h.
//
// Failures are exceptions by pointer: CArchiveException for what the stream holds,
// CFileException for the file. Loading never allocates more than the rest of the file can
// fill. The archive does not own the file.

#include <memory>
#include <unordered_map>
#include <vector>

#include "framework/windowing/Object.h"
#include "framework/windowing/Strings.h"

class CFile;

class CArchive
{
public:
    enum Mode : UINT { store = 0, load = 1 };

    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;
    // Flushes, so it may throw; while another exception passes it keeps quiet.
    ~CArchive() noexcept(false);

    [[nodiscard]] BOOL IsLoading() const noexcept { return (m_nMode & load) != 0; }
    [[nodiscard]] BOOL IsStoring() const noexcept { return (m_nMode & load) == 0; }

    // Reads what there is, at most nMax bytes, and returns the number.
    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, UINT nMax);
    // Storing: writes the buffer out. Loading: returns unread bytes to the file.
    void Flush();
    void Close();

    // Reads exactly nCount bytes; less is an end of the file.
    void ReadExactly(void* lpBuf, UINT nCount);
    // Bytes that the buffer and the rest of the file still hold.
    [[nodiscard]] ULONGLONG GetRemaining() const;
    // Raises the end of the file if nCount elements of nSize bytes can't follow.
    void EnsureRemaining(ULONGLONG nCount, UINT nSize) const;

    // Objects through their class records. A null object can't be read back. A new object
    // belongs to the caller; a reference in the stream yields an object that an earlier call returned.
    void WriteObject(const CObject* pOb);
    [[nodiscard]] CObject* ReadObject(const CRuntimeClass* pClass);
    void WriteClass(const CRuntimeClass* pClassRef);

    CArchive& operator<<(BYTE value) { return Put(value); }
    CArchive& operator<<(WORD value) { return Put(value); }
    CArchive& operator<<(LONG value) { return Put(value); }
    CArchive& operator<<(DWORD value) { return Put(value); }
    CArchive& operator<<(int value) { return Put(value); }
    CArchive& operator<<(unsigned value) { return Put(value); }
    CArchive& operator<<(short value) { return Put(value); }
    CArchive& operator<<(float value) { return Put(value); }
    CArchive& operator<<(double value) { return Put(value); }
    CArchive& operator<<(LONGLONG value) { return Put(value); }
    CArchive& operator<<(ULONGLONG value) { return Put(value); }
    CArchive& operator<<(bool value) { return Put(static_cast<BYTE>(value ? 1 : 0)); }
    CArchive& operator<<(const CString& text);

    CArchive& operator>>(BYTE& value) { return Get(value); }
    CArchive& operator>>(WORD& value) { return Get(value); }
    CArchive& operator>>(LONG& value) { return Get(value); }
    CArchive& operator>>(DWORD& value) { return Get(value); }
    CArchive& operator>>(int& value) { return Get(value); }
    CArchive& operator>>(unsigned& value) { return Get(value); }
    CArchive& operator>>(short& value) { return Get(value); }
    CArchive& operator>>(float& value) { return Get(value); }
    CArchive& operator>>(double& value) { return Get(value); }
    CArchive& operator>>(LONGLONG& value) { return Get(value); }
    CArchive& operator>>(ULONGLONG& value) { return Get(value); }
    CArchive& operator>>(bool& value); // any byte but 0 is true
    CArchive& operator>>(CString& text);

private:
    struct TClassOrObject {
        const CRuntimeClass* pClass = nullptr; // exactly one of the two is set
        CObject* pObject = nullptr;
    };

    template <class Value> CArchive& Put(Value value)
    {
        Write(&value, sizeof value);
        return *this;
    }
    template <class Value> CArchive& Get(Value& value)
    {
        RequireLoading();
        ReadExactly(&value, sizeof value);
        return *this;
    }

    void RequireLoading() const;
    void RequireStoring() const;
    [[noreturn]] void Fail(int cause) const;
    [[nodiscard]] size_t Buffered() const noexcept { return m_nEnd - m_nCur; }
    bool FillBuffer();
    const CRuntimeClass* ReadNewClass();
    const CRuntimeClass* ClassOfNumber(DWORD number) const;
    CObject* ObjectOfNumber(DWORD number, const CRuntimeClass* pClass) const;
    DWORD NextNumber();
    void WriteReference(bool isClass, DWORD number);
    ULONGLONG ReadInteger(int width);

    CFile* m_pFile;
    UINT m_nMode;
    int m_nUncaught; // exceptions under way when the archive was made
    size_t m_nBufSize;
    std::unique_ptr<BYTE[]> m_pBuffer;
    size_t m_nCur = 0;
    size_t m_nEnd = 0; // loading: end of what the buffer holds

    DWORD m_nNumbers = 0; // given so far in the common sequence of classes and objects
    std::unordered_map<const void*, DWORD> m_stored;
    std::vector<TClassOrObject> m_loaded; // element n - 1 has number n
};
