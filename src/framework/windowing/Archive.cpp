#include "framework/windowing/Archive.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <exception>
#include <utility>

#include "framework/windowing/ArchiveEncoding.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize)
    : m_pFile(pFile), m_nMode(nMode), m_nUncaught(std::uncaught_exceptions()),
      m_nBufSize(static_cast<size_t>(nBufSize)), m_pBuffer(std::make_unique<BYTE[]>(m_nBufSize))
{
}

CArchive::~CArchive() noexcept(false)
{
    if (!m_pFile)
        return;
    if (std::uncaught_exceptions() <= m_nUncaught) {
        Close();
        return;
    }
    try {
        Close();
    } catch (CException* e) {
        e->Delete(); // the exception under way reports the first failure
    }
}

void CArchive::Fail(int cause) const
{
    AfxThrowArchiveException(cause, m_pFile ? m_pFile->GetFilePath().GetString() : nullptr);
}

void CArchive::RequireLoading() const
{
    if (!IsLoading())
        Fail(CArchiveException::writeOnly);
}

void CArchive::RequireStoring() const
{
    if (!IsStoring())
        Fail(CArchiveException::readOnly);
}

bool CArchive::FillBuffer()
{
    m_nCur = m_nEnd = 0;
    m_nEnd = m_pFile->Read(m_pBuffer.get(), static_cast<UINT>(m_nBufSize));
    return m_nEnd != 0;
}

UINT CArchive::Read(void* lpBuf, UINT nMax)
{
    RequireLoading();
    BYTE* const target = static_cast<BYTE*>(lpBuf);
    UINT done = 0;
    while (done < nMax && m_pFile) {
        const UINT wanted = nMax - done;
        if (Buffered() == 0 && wanted >= m_nBufSize) {
            const UINT direct = m_pFile->Read(target + done, wanted);
            done += direct;
            if (direct < wanted)
                break;
            continue;
        }
        if (Buffered() == 0 && !FillBuffer())
            break;
        const size_t part = std::min<size_t>(wanted, Buffered());
        std::memcpy(target + done, &m_pBuffer[m_nCur], part);
        m_nCur += part;
        done += static_cast<UINT>(part);
    }
    return done;
}

void CArchive::ReadExactly(void* lpBuf, UINT nCount)
{
    if (Read(lpBuf, nCount) != nCount)
        Fail(CArchiveException::endOfFile);
}

void CArchive::Write(const void* lpBuf, UINT nMax)
{
    RequireStoring();
    if (!m_pFile)
        Fail(CArchiveException::genericException);
    if (nMax > m_nBufSize - m_nCur)
        Flush();
    if (nMax > m_nBufSize) {
        m_pFile->Write(lpBuf, nMax);
        return;
    }
    if (nMax != 0)
        std::memcpy(&m_pBuffer[m_nCur], lpBuf, nMax);
    m_nCur += nMax;
}

void CArchive::Flush()
{
    if (!m_pFile)
        return;
    if (IsLoading()) {
        const size_t unread = Buffered();
        m_nCur = m_nEnd = 0;
        if (unread != 0)
            m_pFile->Seek(-static_cast<LONGLONG>(unread), CFile::current);
        return;
    }
    // Empty before it is written: bytes that failed once are not tried again by the destructor.
    const size_t filled = std::exchange(m_nCur, 0);
    if (filled != 0)
        m_pFile->Write(m_pBuffer.get(), static_cast<UINT>(filled));
}

void CArchive::Close()
{
    Flush();
    m_pFile = nullptr;
}

ULONGLONG CArchive::GetRemaining() const
{
    RequireLoading();
    if (!m_pFile)
        return 0;
    const ULONGLONG length = m_pFile->GetLength();
    const ULONGLONG position = m_pFile->GetPosition();
    return Buffered() + (length > position ? length - position : 0);
}

void CArchive::EnsureRemaining(ULONGLONG nCount, UINT nSize) const
{
    if (nSize != 0 && nCount > GetRemaining() / nSize)
        Fail(CArchiveException::endOfFile);
}

CArchive& CArchive::operator<<(const CString& text)
{
    const auto units = static_cast<UINT>(text.GetLength());
    const ArchiveEncoding::CBytes length = ArchiveEncoding::UnicodeLength(units);
    Write(length.View().data(), static_cast<UINT>(length.View().size()));
    // The bytes can be more than one Write takes.
    constexpr UINT step = 0x10000000;
    for (UINT done = 0; done < units; done += step)
        Write(text.GetString() + done, std::min(step, units - done) * sizeof(WCHAR));
    return *this;
}

CArchive& CArchive::operator>>(bool& value)
{
    BYTE byte = 0;
    Get(byte);
    value = byte != 0;
    return *this;
}

ULONGLONG CArchive::ReadInteger(int width)
{
    RequireLoading();
    ULONGLONG value = 0; // little-endian, as the processor is
    ReadExactly(&value, static_cast<UINT>(width));
    return value;
}

CArchive& CArchive::operator>>(CString& text)
{
    const auto length =
        ArchiveEncoding::ReadTextLength([this](int width) { return ReadInteger(width); });
    const UINT unit = length.isUnicode ? sizeof(WCHAR) : 1;
    EnsureRemaining(length.count, unit);
    if (length.count > INT_MAX / sizeof(WCHAR))
        Fail(CArchiveException::endOfFile);

    const int count = static_cast<int>(length.count);
    CString loaded;
    if (length.isUnicode) {
        ReadExactly(loaded.GetBuffer(count), static_cast<UINT>(count) * unit);
        loaded.ReleaseBuffer(count);
    } else if (count != 0) {
        std::vector<char> bytes(static_cast<size_t>(count));
        ReadExactly(bytes.data(), static_cast<UINT>(count));
        const int units =
            ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), count, loaded.GetBuffer(count), count);
        loaded.ReleaseBuffer(units);
    }
    text = std::move(loaded);
    return *this;
}
