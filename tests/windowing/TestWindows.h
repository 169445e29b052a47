#pragma once
// Windows for the framework's tests: a host's plain window, and a loop for its messages.

#include <functional>

#include "framework/windowing/Window.h"

// A top-level window of a host that knows nothing of the framework.
class CHostWindow
{
public:
    using THandler = std::function<bool(HWND, UINT, WPARAM, LPARAM)>;

    // The handler sees each message and answers whether it is done with it.
    explicit CHostWindow(THandler handler = {}) : m_handler(std::move(handler))
    {
        WNDCLASSW looks{};
        looks.lpfnWndProc = &Procedure;
        looks.hInstance = ::GetModuleHandleW(nullptr);
        looks.lpszClassName = L"FrameworkTestHost";
        ::RegisterClassW(&looks);
        m_hWnd = ::CreateWindowExW(0, looks.lpszClassName, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50,
                                   50, 400, 300, nullptr, nullptr, looks.hInstance, this);
    }
    CHostWindow(const CHostWindow&) = delete;
    CHostWindow& operator=(const CHostWindow&) = delete;
    ~CHostWindow()
    {
        m_handler = {};
        if (::IsWindow(m_hWnd))
            ::DestroyWindow(m_hWnd);
    }

    [[nodiscard]] HWND Handle() const { return m_hWnd; }
    // As a CWnd, good for the current call.
    operator CWnd*() const { return CWnd::FromHandle(m_hWnd); }

private:
    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE)
            ::SetWindowLongPtrW(
                hWnd, GWLP_USERDATA,
                reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
        auto* host = reinterpret_cast<CHostWindow*>(::GetWindowLongPtrW(hWnd, GWLP_USERDATA));
        if (host && host->m_handler && host->m_handler(hWnd, message, wParam, lParam))
            return 0;
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    }

    HWND m_hWnd = nullptr;
    THandler m_handler;
};

// What a host's own loop does, until the queue is empty.
inline void DrainQueue()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}
