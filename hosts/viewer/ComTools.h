#pragma once
// What a COM client needs: an owner for interface pointers, one for BSTRs, one for COM itself.

#include "viewer/WideText.h"

#include <objbase.h>
#include <oleauto.h>

#include <utility>

namespace Viewer
{

// Owns one reference.
template <class T> class ComPointer
{
public:
    ComPointer() noexcept = default;
    ComPointer(ComPointer&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}
    ComPointer& operator=(ComPointer&& other) noexcept
    {
        std::swap(m_pointer, other.m_pointer);
        return *this;
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ~ComPointer() { Release(); }

    void Release() noexcept
    {
        if (T* pointer = std::exchange(m_pointer, nullptr))
            pointer->Release();
    }

    // For out parameters: lets go of what is held and takes over what is stored.
    [[nodiscard]] T** Receive() noexcept
    {
        Release();
        return &m_pointer;
    }

    [[nodiscard]] T* Get() const noexcept { return m_pointer; }
    T* operator->() const noexcept { return m_pointer; }
    explicit operator bool() const noexcept { return m_pointer != nullptr; }

private:
    T* m_pointer = nullptr;
};

// A string argument; never NULL, also for an empty text.
class Bstr
{
public:
    explicit Bstr(std::u16string_view text)
        : m_text(SysAllocStringLen(WideData(text), static_cast<UINT>(text.size())))
    {
    }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(m_text); }
    [[nodiscard]] BSTR Get() const noexcept { return m_text; }

private:
    BSTR m_text;
};

} // namespace Viewer
