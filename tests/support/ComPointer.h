#pragma once
// Owners of what a host holds: an interface reference, a text.

#include <windows.h>

#include <oleauto.h>
#include <unknwn.h>

#include <string>
#include <utility>

// One reference of an interface.
template <class Interface> class Holder
{
public:
    Holder() noexcept = default;
    explicit Holder(Interface* pOwned) noexcept : m_p(pOwned) {}
    Holder(Holder&& other) noexcept : m_p(std::exchange(other.m_p, nullptr)) {}
    Holder& operator=(Holder&& other) noexcept
    {
        std::swap(m_p, other.m_p);
        return *this;
    }
    ~Holder() { Release(); }

    void Release()
    {
        if (Interface* const held = std::exchange(m_p, nullptr))
            held->Release();
    }
    // For a result: what was held before is let go.
    Interface** Out()
    {
        Release();
        return &m_p;
    }
    void** OutVoid() { return reinterpret_cast<void**>(Out()); }
    Interface* operator->() const noexcept { return m_p; }
    operator Interface*() const noexcept { return m_p; }
    [[nodiscard]] Interface* Get() const noexcept { return m_p; }

private:
    Interface* m_p = nullptr;
};

// A text as automation passes it.
class Text
{
public:
    Text() noexcept = default;
    Text(const wchar_t* pszText) : m_bstr(::SysAllocString(pszText)) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { ::SysFreeString(m_bstr); }

    operator BSTR() const noexcept { return m_bstr; }
    BSTR* Out() noexcept { return &m_bstr; }
    [[nodiscard]] std::wstring Str() const { return m_bstr ? m_bstr : L"(null)"; }

private:
    BSTR m_bstr = nullptr;
};
