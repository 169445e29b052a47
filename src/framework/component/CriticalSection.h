#pragma once
// Critical sections of the component framework. Init may fail; until it has succeeded Lock
// refuses and the others do nothing.

#include <windows.h>

class CComCriticalSection
{
public:
    CComCriticalSection() = default;
    CComCriticalSection(const CComCriticalSection&) = delete;
    CComCriticalSection& operator=(const CComCriticalSection&) = delete;
    ~CComCriticalSection() { Term(); }

    HRESULT Init() noexcept
    {
        if (!m_initialised)
            m_initialised = ::InitializeCriticalSectionAndSpinCount(&m_sec, 0) != FALSE;
        return m_initialised ? S_OK : E_OUTOFMEMORY;
    }

    HRESULT Term() noexcept
    {
        if (m_initialised) {
            ::DeleteCriticalSection(&m_sec);
            m_initialised = false;
        }
        return S_OK;
    }

    HRESULT Lock() noexcept
    {
        if (!m_initialised)
            return E_FAIL;
        ::EnterCriticalSection(&m_sec);
        return S_OK;
    }

    HRESULT Unlock() noexcept
    {
        if (m_initialised)
            ::LeaveCriticalSection(&m_sec);
        return S_OK;
    }

private:
    CRITICAL_SECTION m_sec{};
    bool m_initialised = false;
};

// Holds a section for a scope.
class CComCritSecLock
{
public:
    explicit CComCritSecLock(CComCriticalSection& section) noexcept
        : m_section(section), m_result(section.Lock())
    {
    }
    CComCritSecLock(const CComCritSecLock&) = delete;
    CComCritSecLock& operator=(const CComCritSecLock&) = delete;
    ~CComCritSecLock()
    {
        if (SUCCEEDED(m_result))
            m_section.Unlock();
    }

    [[nodiscard]] HRESULT Result() const noexcept { return m_result; }

private:
    CComCriticalSection& m_section;
    HRESULT m_result;
};
