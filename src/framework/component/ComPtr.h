#pragma once
// Owner of one interface reference.

#include <unknwn.h>

#include <utility>

template <class T> class CComPtr
{
public:
    CComPtr() noexcept = default;
    explicit CComPtr(T* pointer) noexcept : p(pointer) { AddRefIfAny(); }
    CComPtr(const CComPtr& other) noexcept : p(other.p) { AddRefIfAny(); }
    CComPtr(CComPtr&& other) noexcept : p(std::exchange(other.p, nullptr)) {}
    CComPtr& operator=(CComPtr other) noexcept
    {
        std::swap(p, other.p);
        return *this;
    }
    ~CComPtr() { Release(); }

    T* p = nullptr;

    operator T*() const noexcept { return p; }
    T* operator->() const noexcept { return p; }
    // For a function that hands out a reference; the pointer must be empty.
    T** operator&() noexcept { return &p; }

    void Release() noexcept
    {
        if (T* old = std::exchange(p, nullptr))
            old->Release();
    }
    // Takes over a reference; drops the one held.
    void Attach(T* pointer) noexcept
    {
        Release();
        p = pointer;
    }
    // Hands the reference over.
    [[nodiscard]] T* Detach() noexcept { return std::exchange(p, nullptr); }

    template <class Q> HRESULT QueryInterface(Q** pp) const noexcept
    {
        return p->QueryInterface(__uuidof(Q), reinterpret_cast<void**>(pp));
    }

private:
    void AddRefIfAny() noexcept
    {
        if (p)
            p->AddRef();
    }
};
