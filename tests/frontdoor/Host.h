#pragma once
// A host as it comes from outside: it loads the DLL that lies beside the program, knows the
// generated header and nothing else of the product, and has a window and a message loop.

#include <ole2.h>
#include <windows.h>

#include "vantoplex.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

// An interface pointer with its reference.
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
    // For a result: what was held before is let go.
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
    [[nodiscard]] std::wstring Str() const { return m_bstr != nullptr ? m_bstr : L"(null)"; }

private:
    BSTR m_bstr = nullptr;
};

// The DLL, loaded like any other and never registered.
class Server
{
public:
    explicit Server(const std::wstring& path = PathBesideProgram())
        : m_hModule(::LoadLibraryW(path.c_str())),
          m_pfnGetClassObject(
              Export<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>("DllGetClassObject")),
          m_pfnCanUnloadNow(Export<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow"))
    {
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() { Unload(); }

    // The one that all tests share.
    static Server& Shared()
    {
        static Server server;
        return server;
    }
    static std::wstring PathBesideProgram()
    {
        wchar_t path[MAX_PATH];
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        const std::wstring program = path;
        return program.substr(0, program.find_last_of(L'\\') + 1) + L"Vantoplex.dll";
    }

    void Unload()
    {
        if (m_hModule != nullptr)
            ::FreeLibrary(std::exchange(m_hModule, nullptr));
    }
    [[nodiscard]] HRESULT CanUnloadNow() const { return m_pfnCanUnloadNow(); }

    // A new object, asked for its default interface; null if that fails.
    template <class Class, class Interface> [[nodiscard]] Holder<Interface> Make() const
    {
        Holder<IClassFactory> factory;
        Holder<Interface> object;
        if (m_pfnGetClassObject == nullptr ||
            FAILED(m_pfnGetClassObject(__uuidof(Class), IID_IClassFactory,
                                       reinterpret_cast<void**>(factory.Out()))))
            return object;
        factory->CreateInstance(nullptr, __uuidof(Interface), reinterpret_cast<void**>(object.Out()));
        return object;
    }

private:
    template <class Function> Function Export(const char* pszName) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(m_hModule, pszName)));
    }

    HMODULE m_hModule;
    HRESULT(STDAPICALLTYPE* m_pfnGetClassObject)(REFCLSID, REFIID, void**);
    HRESULT(STDAPICALLTYPE* m_pfnCanUnloadNow)();
};

// A top-level window of the host that keeps the notifications it gets.
class HostWindow
{
public:
    struct Notification {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    explicit HostWindow(int nWidth = 900, int nHeight = 700)
    {
        WNDCLASSW wndclass = {};
        wndclass.lpfnWndProc = &HostWindow::Procedure;
        wndclass.hInstance = ::GetModuleHandleW(nullptr);
        wndclass.lpszClassName = L"VantoplexTestHost";
        ::RegisterClassW(&wndclass); // fails harmlessly the second time
        m_hWnd = ::CreateWindowExW(0, wndclass.lpszClassName, L"Host", WS_POPUP | WS_VISIBLE, 0, 0,
                                   nWidth, nHeight, nullptr, nullptr, wndclass.hInstance, this);
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { Destroy(); }

    void Destroy()
    {
        if (m_hWnd != nullptr)
            ::DestroyWindow(std::exchange(m_hWnd, nullptr));
    }

    // Handles every message that waits.
    static void Pump()
    {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    // Runs the message loop until the condition holds; false if it never does.
    static bool PumpUntil(const std::function<bool()>& condition, DWORD nMilliseconds = 20000)
    {
        const DWORD nStart = ::GetTickCount();
        while (Pump(), !condition()) {
            if (::GetTickCount() - nStart > nMilliseconds)
                return false;
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        }
        return true;
    }

    HWND m_hWnd = nullptr;
    std::vector<Notification> m_notifications; // of WM_USER and above

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE) {
            ::SetWindowLongPtrW(hWnd, GWLP_USERDATA,
                                reinterpret_cast<LONG_PTR>(
                                    reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams));
        }
        auto* pHost = reinterpret_cast<HostWindow*>(::GetWindowLongPtrW(hWnd, GWLP_USERDATA));
        if (pHost != nullptr && message >= WM_USER && message < 0xC000)
            pHost->m_notifications.push_back({message, wParam, lParam});
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    }
};

inline wireHWND WireHandle(HWND hWnd)
{
    return reinterpret_cast<wireHWND>(hWnd);
}
