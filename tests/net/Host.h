#pragma once
// A plain host: it loads a DLL by its path, knows the generated header and COM, and has a window.

#include <windows.h>
#include <ole2.h>

#include "vantoplex.h"

#include <string>
#include <utility>
#include <vector>

// Owner of one reference.
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
        if (m_p != nullptr)
            std::exchange(m_p, nullptr)->Release();
    }
    Interface** Out()
    {
        Release();
        return &m_p;
    }
    Interface* operator->() const noexcept { return m_p; }
    [[nodiscard]] Interface* Get() const noexcept { return m_p; }
    explicit operator bool() const noexcept { return m_p != nullptr; }

private:
    Interface* m_p = nullptr;
};

// Owner of a text as automation passes it.
class Text
{
public:
    Text() noexcept = default;
    Text(const wchar_t* pszText) : m_bstr(::SysAllocString(pszText)) {}
    Text(const std::wstring& text) : Text(text.c_str()) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { ::SysFreeString(m_bstr); }

    operator BSTR() const noexcept { return m_bstr; }
    BSTR* Out() noexcept { return &m_bstr; }
    [[nodiscard]] std::string Narrow() const;

private:
    BSTR m_bstr = nullptr;
};

// The DLL under test. It is never registered.
class Server
{
public:
    explicit Server(const std::wstring& path);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    [[nodiscard]] bool IsLoaded() const { return m_pfnGetClassObject != nullptr; }
    [[nodiscard]] HMODULE Module() const { return m_hModule; }

    template <class Class, class Interface> [[nodiscard]] Holder<Interface> Make() const
    {
        Holder<Interface> object;
        Make(__uuidof(Class), __uuidof(Interface), reinterpret_cast<void**>(object.Out()));
        return object;
    }

private:
    void Make(const CLSID& clsid, const IID& iid, void** ppObject) const;

    HMODULE m_hModule;
    HRESULT(STDAPICALLTYPE* m_pfnGetClassObject)(REFCLSID, REFIID, void**) = nullptr;
};

// A top-level window without decoration at the screen's origin.
class HostWindow
{
public:
    HostWindow(int nWidth, int nHeight);
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow();

    [[nodiscard]] HWND Handle() const { return m_hWnd; }
    [[nodiscard]] wireHWND Wire() const { return reinterpret_cast<wireHWND>(m_hWnd); }

    // The notifications that have been posted to it since the last call, in their order. No other
    // message is taken: timers and paints happen only where the script makes them.
    [[nodiscard]] std::vector<MSG> TakePosted() const;
    // Lets the display finish what a new window brings about.
    static void Settle();

private:
    HWND m_hWnd;
};
